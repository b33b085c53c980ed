// SPDX-License-Identifier: GPL-3.0-or-later
#include "visibletimer.h"

#include <QEvent>
#include <QWidget>

using namespace std::chrono_literals;

VisibleTimer::VisibleTimer(QWidget *widget) : QObject(widget) {
    timer.setInterval(1s);
    connect(&timer, &QTimer::timeout, this, &VisibleTimer::beat);
    widget->installEventFilter(this);
}

void VisibleTimer::setInterval(std::chrono::milliseconds interval) {
    timer.setInterval(interval);
}

bool VisibleTimer::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::Show) {
        emit appeared();
        timer.start();
        emit beat();
    } else if (event->type() == QEvent::Hide) {
        timer.stop();
    }
    return QObject::eventFilter(object, event);
}
