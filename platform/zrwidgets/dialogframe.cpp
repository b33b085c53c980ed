// SPDX-License-Identifier: GPL-3.0-or-later
#include "dialogframe.h"

#include <QPainter>

namespace {

constexpr qreal borderWidth = 2;
constexpr qreal radius = 10;

} // namespace

void DialogFrame::paintEvent(QPaintEvent *) {
    constexpr qreal inset = borderWidth / 2;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Dark), borderWidth));
    painter.setBrush(palette().window());
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), radius, radius);
}
