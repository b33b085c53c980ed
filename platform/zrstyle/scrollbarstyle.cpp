// SPDX-License-Identifier: GPL-3.0-or-later
#include "scrollbarstyle.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace {

constexpr int shortestHandle = 52;
constexpr int handleMargin = 8;

bool isHorizontal(const QStyleOptionSlider &option) {
    return option.orientation == Qt::Horizontal;
}

int lengthOf(const QStyleOptionSlider &option) {
    return isHorizontal(option) ? option.rect.width() : option.rect.height();
}

int handleLength(const QStyleOptionSlider &option) {
    const int length = lengthOf(option);
    const qint64 range = qint64(option.maximum) - option.minimum;
    if (range <= 0)
        return length;
    const qint64 page = qMax(option.pageStep, 0);
    return qBound(qMin(shortestHandle, length), int(page * length / (range + page)), length);
}

QRect along(const QStyleOptionSlider &option, int start, int length) {
    const QRect &bar = option.rect;
    return isHorizontal(option) ? QRect(bar.x() + start, bar.y(), length, bar.height())
                                : QRect(bar.x(), bar.y() + start, bar.width(), length);
}

} // namespace

QRect ScrollBarStyle::partRect(const QStyleOptionSlider &option, QStyle::SubControl part) {
    const int length = handleLength(option);
    const int free = lengthOf(option) - length;
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      free, option.upsideDown);
    switch (part) {
    case QStyle::SC_ScrollBarSubPage:
        return along(option, 0, start);
    case QStyle::SC_ScrollBarSlider:
        return along(option, start, length);
    case QStyle::SC_ScrollBarAddPage:
        return along(option, start + length, free - start);
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    default:
        return {};
    }
}

void ScrollBarStyle::draw(const QStyleOptionSlider &option, const QBrush &ground, QPainter *painter) {
    const bool isHeld =
        option.activeSubControls & QStyle::SC_ScrollBarSlider && option.state & QStyle::State_Sunken;
    painter->fillRect(option.rect, ground);
    const QRectF handle =
        QRectF(partRect(option, QStyle::SC_ScrollBarSlider))
            .marginsRemoved(isHorizontal(option) ? QMarginsF(0, handleMargin, 0, handleMargin)
                                                 : QMarginsF(handleMargin, 0, handleMargin, 0));
    const qreal radius = qMin(handle.width(), handle.height()) / 2;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(isHeld ? option.palette.highlight() : option.palette.placeholderText());
    painter->drawRoundedRect(handle, radius, radius);
    painter->restore();
}
