// SPDX-License-Identifier: GPL-3.0-or-later
#include "sliderstyle.h"

#include "shapes.h"

#include <QPainter>
#include <QSlider>
#include <QStyleOptionSlider>

namespace {

constexpr qreal trackWidth = 8;
constexpr qreal handleRadius = 15;
constexpr qreal ringRadius = 20;
constexpr qreal tickReach = 24;
constexpr qreal tickLength = 6;
constexpr int mostTicks = 100;

bool isHorizontal(const QStyleOptionSlider &option) {
    return option.orientation == Qt::Horizontal;
}

QRectF turned(const QStyleOptionSlider &option, qreal along, qreal across, qreal length, qreal width) {
    return isHorizontal(option) ? QRectF(along, across, length, width) : QRectF(across, along, width, length);
}

QRectF trackRect(const QStyleOptionSlider &option) {
    const QRectF whole = option.rect;
    const qreal margin = SliderStyle::handleLength / 2.0 - trackWidth / 2;
    return isHorizontal(option) ? QRectF(whole.left() + margin, whole.center().y() - trackWidth / 2,
                                         whole.width() - 2 * margin, trackWidth)
                                : QRectF(whole.center().x() - trackWidth / 2, whole.top() + margin,
                                         trackWidth, whole.height() - 2 * margin);
}

QPointF handleCenter(const QStyleOptionSlider &option) {
    return QRectF(SliderStyle::partRect(option, QStyle::SC_SliderHandle)).center();
}

QRectF coveredRect(const QStyleOptionSlider &option) {
    QRectF covered = trackRect(option);
    const QPointF handle = handleCenter(option);
    if (isHorizontal(option))
        option.upsideDown ? covered.setLeft(handle.x()) : covered.setRight(handle.x());
    else
        option.upsideDown ? covered.setTop(handle.y()) : covered.setBottom(handle.y());
    return covered;
}

void drawTicks(const QStyleOptionSlider &option, QPainter *painter) {
    const int step = option.tickInterval > 0 ? option.tickInterval : option.pageStep;
    const qint64 range = qint64(option.maximum) - option.minimum;
    if (step <= 0 || range / step > mostTicks)
        return;
    QStyleOptionSlider at = option;
    for (qint64 value = option.minimum; value <= option.maximum; value += step) {
        at.sliderPosition = static_cast<int>(value);
        const QPointF center = handleCenter(at);
        const qreal along = isHorizontal(option) ? center.x() : center.y();
        const qreal across = isHorizontal(option) ? center.y() : center.x();
        if (option.tickPosition & QSlider::TicksAbove)
            painter->fillRect(turned(option, along - 1, across - tickReach, 2, tickLength),
                              option.palette.placeholderText());
        if (option.tickPosition & QSlider::TicksBelow)
            painter->fillRect(turned(option, along - 1, across + tickReach - tickLength, 2, tickLength),
                              option.palette.placeholderText());
    }
}

void drawHandle(const QStyleOptionSlider &option, QPainter *painter) {
    const bool isHeld = Shapes::isEnabled(option) && option.state & QStyle::State_Sunken &&
                        option.activeSubControls & QStyle::SC_SliderHandle;
    painter->setPen(Qt::NoPen);
    painter->setBrush(isHeld                      ? option.palette.highlight()
                      : Shapes::isEnabled(option) ? option.palette.button()
                                                  : option.palette.placeholderText());
    painter->drawEllipse(handleCenter(option), handleRadius, handleRadius);
    if (!Shapes::hasFocus(option))
        return;
    const qreal radius = ringRadius - Shapes::focusRingWidth / 2;
    painter->setPen(QPen(option.palette.color(QPalette::Highlight), Shapes::focusRingWidth));
    painter->setBrush(Qt::NoBrush);
    painter->drawEllipse(handleCenter(option), radius, radius);
}

} // namespace

QRect SliderStyle::partRect(const QStyleOptionSlider &option, QStyle::SubControl part) {
    const QRect &whole = option.rect;
    if (part != QStyle::SC_SliderHandle)
        return whole;
    const int length = isHorizontal(option) ? whole.width() : whole.height();
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      qMax(0, length - handleLength), option.upsideDown);
    return isHorizontal(option) ? QRect(whole.left() + start, whole.top(), handleLength, whole.height())
                                : QRect(whole.left(), whole.top() + start, whole.width(), handleLength);
}

void SliderStyle::draw(const QStyleOptionSlider &option, QPainter *painter) {
    const auto covered = Shapes::isEnabled(option) ? QPalette::Highlight : QPalette::PlaceholderText;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    drawTicks(option, painter);
    // The end of the slider that is empty must be seen on the page, too.
    Shapes::drawRounded(painter, trackRect(option), option.palette.mid(), Qt::NoPen, trackWidth / 2);
    Shapes::drawRounded(painter, coveredRect(option), option.palette.brush(covered), Qt::NoPen,
                        trackWidth / 2);
    drawHandle(option, painter);
    painter->restore();
}
