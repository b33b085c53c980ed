// SPDX-License-Identifier: GPL-3.0-or-later
#include "paintwatch.h"

#include <QPaintEvent>
#include <QWidget>

PaintWatch::PaintWatch(QObject *watched) {
    watched->installEventFilter(this);
}

int PaintWatch::area() const {
    int pixels = 0;
    for (const QRegion &region : painted) {
        for (const QRect &rect : region)
            pixels += rect.width() * rect.height();
    }
    return pixels;
}

bool PaintWatch::eventFilter(QObject *object, QEvent *event) {
    // The widget's window is asked to paint, too.
    if (event->type() == QEvent::Paint && object->isWidgetType()) {
        ++count;
        painted[static_cast<const QWidget *>(object)] += static_cast<QPaintEvent *>(event)->region();
    }
    return QObject::eventFilter(object, event);
}
