// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/batterypicture.h"

#include <QPolygonF>

namespace {

constexpr QPointF origin(6, 4);
constexpr QRectF body(6, 4, 49, 27);
constexpr qreal cornerX = 27;
constexpr qreal cornerY = 50;

} // namespace

QPainterPath BatteryPicture::outerPath() {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    path.addRoundedRect(body, cornerX, cornerY, Qt::RelativeSize);
    path.addRoundedRect(body.adjusted(1, 1, -1, -1), cornerX, cornerY, Qt::RelativeSize);

    const QPointF bottomRight(body.width(), body.height());
    const QPointF first(bottomRight.x(), bottomRight.y() / 3);
    const QPointF second(static_cast<float>(bottomRight.x() + 4.41), bottomRight.y() - 9);
    QRectF terminal(first, second);
    terminal.moveTopLeft(terminal.topLeft() + origin);
    path.addRoundedRect(terminal, 50, 50, Qt::RelativeSize);
    return path;
}

QPainterPath BatteryPicture::innerPath(int percent) {
    QPainterPath path;
    if (percent < 1)
        return path;
    constexpr float margin = 2;
    const float width = static_cast<float>(percent) * (static_cast<float>(body.width()) - 2 * margin) / 100;
    path.setFillRule(Qt::OddEvenFill);
    path.addRoundedRect(
        QRectF(QPointF(margin, margin) + origin, QPointF(margin + width + 6, body.bottom() - margin)),
        cornerX, cornerY, Qt::RelativeSize);
    return path;
}

QPainterPath BatteryPicture::chargingPath() {
    const QPolygonF bolt{{16, 25}, {23, 10}, {27, 13}, {37, 2}, {28, 20}, {25, 17}, {16, 25}};
    QPainterPath path;
    path.addPolygon(bolt.translated(origin));
    return path;
}
