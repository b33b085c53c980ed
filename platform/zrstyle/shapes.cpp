// SPDX-License-Identifier: GPL-3.0-or-later
#include "shapes.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr qreal strokeWidth = 3;
constexpr qreal chevronReach = 7;

void drawStrokes(QPainter *painter, const QPolygonF &points, const QColor &color) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPolyline(points);
    painter->restore();
}

int quarterTurns(Qt::ArrowType direction) {
    switch (direction) {
    case Qt::LeftArrow:
        return 1;
    case Qt::UpArrow:
        return 2;
    case Qt::RightArrow:
        return 3;
    default:
        return 0;
    }
}

} // namespace

bool Shapes::isLit(const QStyleOption &option) {
    return isEnabled(option) && option.state & (QStyle::State_Sunken | QStyle::State_On);
}

bool Shapes::isEnabled(const QStyleOption &option) {
    return option.state & QStyle::State_Enabled;
}

bool Shapes::hasFocus(const QStyleOption &option) {
    return isEnabled(option) && option.state & QStyle::State_HasFocus;
}

QColor Shapes::inkOn(const QStyleOption &option, QPalette::ColorRole usual) {
    return option.palette.color(isLit(option) ? QPalette::HighlightedText : usual);
}

void Shapes::drawRounded(QPainter *painter, const QRectF &rect, const QBrush &fill, const QPen &pen,
                         qreal cornerRadius) {
    const qreal inset = pen.style() == Qt::NoPen ? 0 : pen.widthF() / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(pen);
    painter->setBrush(fill);
    painter->drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), cornerRadius - inset,
                             cornerRadius - inset);
    painter->restore();
}

void Shapes::drawFocusRing(QPainter *painter, const QRectF &rect, const QColor &color) {
    drawRounded(painter, rect, Qt::NoBrush, QPen(color, focusRingWidth));
}

void Shapes::drawChevron(QPainter *painter, const QRectF &rect, Qt::ArrowType direction,
                         const QColor &color) {
    const qreal reach = qMin(chevronReach, qMin(rect.width(), rect.height()) / 3);
    const QPolygonF down{QPointF(-reach, -reach / 2), QPointF(0, reach / 2), QPointF(reach, -reach / 2)};
    QTransform place = QTransform::fromTranslate(rect.center().x(), rect.center().y());
    place.rotate(90.0 * quarterTurns(direction));
    drawStrokes(painter, place.map(down), color);
}

void Shapes::drawCheckMark(QPainter *painter, const QRectF &rect, const QColor &color) {
    const auto at = [&rect](qreal x, qreal y) {
        return rect.topLeft() + QPointF(x * rect.width(), y * rect.height());
    };
    drawStrokes(painter, {at(0.24, 0.52), at(0.43, 0.71), at(0.77, 0.31)}, color);
}
