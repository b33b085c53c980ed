// SPDX-License-Identifier: GPL-3.0-or-later
#include "plainline.h"

#include <QPainter>

PlainLine::PlainLine(Direction direction, unsigned int thickness, QWidget *parent)
    : QWidget(parent), lineThickness(static_cast<int>(thickness)) {
    if (direction == Horizontal)
        setFixedHeight(lineThickness);
    else
        setFixedWidth(lineThickness);
}

QSize PlainLine::sizeHint() const {
    return {lineThickness, lineThickness};
}

void PlainLine::paintEvent(QPaintEvent *) {
    QPainter(this).fillRect(rect(), palette().dark());
}
