// SPDX-License-Identifier: GPL-3.0-or-later
#include "surfacekeeper.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include <private/qwidget_p.h>

namespace {

QWidget *widgetOf(const QWindow *window) {
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        if (widget->windowHandle() == window)
            return widget;
    }
    return nullptr;
}

} // namespace

SurfaceKeeper::SurfaceKeeper(QObject *parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool SurfaceKeeper::eventFilter(QObject *watched, QEvent *event) {
    const auto *const window = event->type() == QEvent::Close ? qobject_cast<QWindow *>(watched) : nullptr;
    // Main windows end the application when the last one is closed, which is the window's own business.
    if (!window || window->type() == Qt::Window)
        return QObject::eventFilter(watched, event);
    QWidget *const widget = widgetOf(window);
    if (!widget)
        return QObject::eventFilter(watched, event);
    // What the window would have its widget do; what it would do itself afterwards, give up its surface, is left out.
    event->setAccepted(QWidgetPrivate::get(widget)->handleClose(QWidgetPrivate::CloseWithSpontaneousEvent));
    return true;
}
