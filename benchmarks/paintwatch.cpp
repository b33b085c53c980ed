// SPDX-License-Identifier: GPL-3.0-or-later
#include "paintwatch.h"

#include <QPaintEvent>

#include <algorithm>

PaintWatch::PaintWatch(QObject *watched) {
    watched->installEventFilter(this);
}

bool PaintWatch::eventFilter(QObject *object, QEvent *event) {
    // The widget's window is asked to paint, too.
    if (event->type() == QEvent::Paint && object->isWidgetType()) {
        const QRect rect = static_cast<QPaintEvent *>(event)->region().boundingRect();
        ++count;
        last = rect.width() * rect.height();
        largest = std::max(largest, last);
    }
    return QObject::eventFilter(object, event);
}
