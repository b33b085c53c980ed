// SPDX-License-Identifier: GPL-3.0-or-later
#include "lamp.h"

#include <palettefactory.h>

#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal ringWidth = 2;

QPainterPath lampShape(MeasQuality quality, const QRectF &box) {
    QPainterPath shape;
    switch (quality) {
    case Bad:
        shape.addRoundedRect(box, 1, 1);
        break;
    case Warning:
        shape.addPolygon(
            QPolygonF{QPointF(box.center().x(), box.top()), box.bottomRight(), box.bottomLeft()});
        shape.closeSubpath();
        break;
    case Good:
    case NotMeasured:
        shape.addEllipse(box);
        break;
    }
    return shape;
}

} // namespace

QColor lampColor(MeasQuality quality) {
    const QPalette colors = PaletteFactory::getPalette(u"quality"_s);
    switch (quality) {
    case Good:
        return colors.color(QPalette::Active, QPalette::Window);
    case Warning:
        return colors.color(QPalette::Inactive, QPalette::Window);
    case Bad:
        return colors.color(QPalette::Disabled, QPalette::Window);
    case NotMeasured:
        break;
    }
    return colors.color(QPalette::Mid);
}

void drawLamp(QPainter *painter, const QRectF &rect, MeasQuality quality, qreal largest) {
    const qreal size = qMin(largest, qMin(rect.width(), rect.height()));
    QRectF box(0, 0, size, size);
    box.moveCenter(rect.center());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (quality == NotMeasured) {
        const qreal inset = ringWidth / 2;
        painter->setPen(QPen(lampColor(quality), ringWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(lampShape(quality, box.adjusted(inset, inset, -inset, -inset)));
    } else {
        painter->fillPath(lampShape(quality, box), lampColor(quality));
    }
    painter->restore();
}
