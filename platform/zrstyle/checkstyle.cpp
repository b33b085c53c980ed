// SPDX-License-Identifier: GPL-3.0-or-later
#include "checkstyle.h"

#include "shapes.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr int sideMargin = 8;
constexpr qreal edgeWidth = 2;
constexpr qreal boxRadius = 6;
constexpr qreal dotShare = 0.4;

bool isChosen(const QStyleOption &option) {
    return option.state & (QStyle::State_On | QStyle::State_NoChange);
}

QPen edgeOf(const QStyleOption &option) {
    const auto role = Shapes::isEnabled(option) && (isChosen(option) || option.state & QStyle::State_Sunken)
                          ? QPalette::Highlight
                          : QPalette::PlaceholderText;
    return QPen(option.palette.color(role), edgeWidth);
}

/// While it is held it shows the other colours: the answer to the press.
bool isFilled(const QStyleOption &option) {
    const bool isHeld = option.state & QStyle::State_Sunken;
    return isChosen(option) != isHeld;
}

QBrush groundOf(const QStyleOption &option) {
    if (!Shapes::isEnabled(option))
        return option.palette.mid();
    return isFilled(option) ? option.palette.highlight() : option.palette.base();
}

QColor markColor(const QStyleOption &option) {
    if (!Shapes::isEnabled(option))
        return option.palette.color(QPalette::PlaceholderText);
    return option.palette.color(isFilled(option) ? QPalette::HighlightedText : QPalette::Highlight);
}

QRectF squareIn(const QRect &rect) {
    const qreal side = qMin(rect.width(), rect.height());
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    return square;
}

} // namespace

void CheckStyle::drawBox(const QStyleOption &option, QPainter *painter) {
    const QRectF box = squareIn(option.rect);
    Shapes::drawRounded(painter, box, groundOf(option), edgeOf(option), boxRadius);
    if (option.state & QStyle::State_On) {
        Shapes::drawCheckMark(painter, box, markColor(option));
    } else if (option.state & QStyle::State_NoChange) {
        const QRectF dash =
            box.adjusted(box.width() / 4, box.height() / 2 - 1.5, -box.width() / 4, 1.5 - box.height() / 2);
        painter->fillRect(dash, markColor(option));
    }
}

void CheckStyle::drawCircle(const QStyleOption &option, QPainter *painter) {
    const QRectF circle = squareIn(option.rect);
    Shapes::drawRounded(painter, circle, groundOf(option), edgeOf(option), circle.width() / 2);
    if (!(option.state & QStyle::State_On))
        return;
    QRectF dot(0, 0, circle.width() * dotShare, circle.height() * dotShare);
    dot.moveCenter(circle.center());
    Shapes::drawRounded(painter, dot, markColor(option), Qt::NoPen, dot.width() / 2);
}

QRect CheckStyle::markRect(const QStyleOption &option) {
    const QRect &whole = option.rect;
    const QRect mark(whole.left() + sideMargin, whole.top() + (whole.height() - markSize) / 2, markSize,
                     markSize);
    return QStyle::visualRect(option.direction, whole, mark);
}

QRect CheckStyle::textRect(const QStyleOption &option) {
    return QStyle::visualRect(option.direction, option.rect,
                              option.rect.adjusted(sideMargin + markSize + gap, 0, -sideMargin, 0));
}

QSize CheckStyle::size(const QSize &contents) {
    return {contents.width() + markSize + gap + 2 * sideMargin, qMax(contents.height(), Shapes::touchHeight)};
}
