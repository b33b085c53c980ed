// SPDX-License-Identifier: GPL-3.0-or-later
#include "buttonstyle.h"

#include "shapes.h"

#include <QStyleOption>

namespace {

constexpr int sidePadding = 16;
constexpr qreal edgeWidth = 1;
/// Of a checked button that cannot be pressed now.
constexpr qreal checkedEdgeWidth = 3;
constexpr qreal pressedEdgeWidth = 2;
constexpr qreal pressedInset = 3;

QPen edgeOf(const QStyleOption &option) {
    if (!Shapes::isEnabled(option) && option.state & QStyle::State_On)
        return QPen(option.palette.color(QPalette::PlaceholderText), checkedEdgeWidth);
    return QPen(option.palette.color(Shapes::isLit(option) ? QPalette::Highlight : QPalette::Midlight),
                edgeWidth);
}

/// A button with the focus stands back from its ring: the accent would not be seen on a dark button.
QRectF bodyOf(const QStyleOption &option) {
    const qreal inset = Shapes::hasFocus(option) ? Shapes::focusMargin : 0;
    return QRectF(option.rect).adjusted(inset, inset, -inset, -inset);
}

void drawBody(const QStyleOption &option, QPainter *painter) {
    const auto fill = Shapes::isLit(option) ? QPalette::Highlight : QPalette::Button;
    const qreal cornerRadius =
        Shapes::hasFocus(option) ? Shapes::radius - Shapes::focusRingWidth : Shapes::radius;
    const QRectF body = bodyOf(option);
    Shapes::drawRounded(painter, body, option.palette.brush(fill), edgeOf(option), cornerRadius);
    if (!Shapes::isLit(option) || !(option.state & QStyle::State_Sunken) ||
        !(option.state & QStyle::State_On))
        return;
    // It is lit already: a line inside answers the press.
    Shapes::drawRounded(painter, body.adjusted(pressedInset, pressedInset, -pressedInset, -pressedInset),
                        Qt::NoBrush, QPen(option.palette.color(QPalette::HighlightedText), pressedEdgeWidth),
                        cornerRadius - pressedInset);
}

void drawRing(const QStyleOption &option, QPainter *painter) {
    if (Shapes::hasFocus(option))
        Shapes::drawFocusRing(painter, option.rect, option.palette.color(QPalette::Highlight));
}

} // namespace

void ButtonStyle::drawBevel(const QStyleOptionButton &option, QPainter *painter) {
    const bool isFlat = option.features & QStyleOptionButton::Flat;
    if (!isFlat || Shapes::isLit(option))
        drawBody(option, painter);
    if (option.features & QStyleOptionButton::HasMenu) {
        const QRect mark(option.rect.right() - menuMarkWidth, option.rect.top(), menuMarkWidth - 4,
                         option.rect.height());
        Shapes::drawChevron(painter, QStyle::visualRect(option.direction, option.rect, mark), Qt::DownArrow,
                            Shapes::inkOn(option, isFlat ? QPalette::WindowText : QPalette::ButtonText));
    }
    drawRing(option, painter);
}

void ButtonStyle::drawToolPanel(const QStyleOption &option, QPainter *painter) {
    const bool isFlat = option.state & QStyle::State_AutoRaise;
    if (!isFlat || Shapes::isLit(option))
        drawBody(option, painter);
    drawRing(option, painter);
}

QStyleOptionButton ButtonStyle::labelOption(const QStyleOptionButton &option, int buttonWidth) {
    QStyleOptionButton label = option;
    const int icon = option.icon.isNull() ? 0 : option.iconSize.width();
    label.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, buttonWidth - sidePadding - icon,
                                               Qt::TextShowMnemonic);
    const bool isFlat = option.features & QStyleOptionButton::Flat;
    label.palette.setColor(QPalette::ButtonText,
                           Shapes::inkOn(option, isFlat ? QPalette::WindowText : QPalette::ButtonText));
    // The bevel has drawn the mark already.
    label.features &= ~QStyleOptionButton::HasMenu;
    return label;
}

QStyleOptionToolButton ButtonStyle::labelOption(const QStyleOptionToolButton &option) {
    QStyleOptionToolButton label = option;
    const bool isFlat = option.state & QStyle::State_AutoRaise;
    label.palette.setColor(QPalette::ButtonText,
                           Shapes::inkOn(option, isFlat ? QPalette::WindowText : QPalette::ButtonText));
    return label;
}

QSize ButtonStyle::size(const QSize &contents) {
    return {qMax(contents.width() + 2 * sidePadding, Shapes::touchHeight),
            qMax(contents.height(), Shapes::touchHeight)};
}

bool ButtonStyle::hasMenuMark(const QStyleOptionToolButton &option) {
    return option.features & (QStyleOptionToolButton::HasMenu | QStyleOptionToolButton::MenuButtonPopup);
}

QRect ButtonStyle::menuMark(const QStyleOption &option) {
    return QStyle::visualRect(option.direction, option.rect,
                              option.rect.adjusted(option.rect.width() - menuMarkWidth, 0, 0, 0));
}

QRect ButtonStyle::besideMenuMark(const QStyleOption &option) {
    return QStyle::visualRect(option.direction, option.rect, option.rect.adjusted(0, 0, -menuMarkWidth, 0));
}
