// SPDX-License-Identifier: GPL-3.0-or-later
#include "areaground.h"

#include <QAbstractScrollArea>
#include <QStyleOption>

QBrush AreaGround::of(const QAbstractScrollArea *area) {
    const QWidget *const viewport = area->viewport();
    const auto role = viewport->autoFillBackground() ? viewport->backgroundRole() : QPalette::Window;
    return viewport->palette().brush(role);
}

QBrush AreaGround::below(const QStyleOption &option, const QWidget *widget) {
    for (const QWidget *at = widget ? widget->parentWidget() : nullptr; at; at = at->parentWidget()) {
        if (const auto *const area = qobject_cast<const QAbstractScrollArea *>(at))
            return of(area);
        if (at->isWindow())
            break;
    }
    return option.palette.window();
}
