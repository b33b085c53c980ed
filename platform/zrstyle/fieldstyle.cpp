// SPDX-License-Identifier: GPL-3.0-or-later
#include "fieldstyle.h"

#include "shapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionComplex>

namespace {

constexpr qreal edgeWidth = 1;
constexpr int arrowWidth = 44;
constexpr int stepWidth = Shapes::touchHeight;
constexpr qreal signReach = 8;
constexpr qreal signWidth = 3;

int stepsWidth(const QStyleOptionSpinBox &option) {
    return option.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : 2 * stepWidth;
}

void drawSign(QPainter *painter, const QPointF &center, bool isPlus, const QColor &color) {
    painter->setPen(QPen(color, signWidth, Qt::SolidLine, Qt::RoundCap));
    painter->drawLine(center - QPointF(signReach, 0), center + QPointF(signReach, 0));
    if (isPlus)
        painter->drawLine(center - QPointF(0, signReach), center + QPointF(0, signReach));
}

/// The part of the field that `part` covers, with the field's round corners where it reaches them.
QPainterPath within(const QRectF &field, const QRectF &part) {
    QPainterPath whole;
    whole.addRoundedRect(field, Shapes::radius, Shapes::radius);
    QPainterPath piece;
    piece.addRect(part);
    return whole.intersected(piece);
}

void drawStep(const QStyleOptionSpinBox &option, QStyle::SubControl part, QPainter *painter) {
    const bool isUp = part == QStyle::SC_SpinBoxUp;
    const bool isPossible =
        option.stepEnabled & (isUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled);
    const bool isPressed =
        isPossible && option.state & QStyle::State_Sunken && option.activeSubControls & part;
    const QRectF rect = FieldStyle::spinBoxPart(option, part);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (isPressed) {
        painter->fillPath(within(option.rect, rect), option.palette.highlight());
    } else {
        const qreal edge = option.direction == Qt::RightToLeft ? rect.right() - 1 : rect.left();
        painter->fillRect(QRectF(edge, rect.top() + Shapes::padding, 1, rect.height() - 2 * Shapes::padding),
                          option.palette.midlight());
    }
    const auto role = isPressed ? QPalette::HighlightedText : isPossible ? QPalette::Text : QPalette::Mid;
    drawSign(painter, rect.center(), isUp, option.palette.color(role));
    painter->restore();
}

} // namespace

QBrush FieldStyle::ground(const QStyleOption &option) {
    return Shapes::isEnabled(option) ? option.palette.base() : option.palette.window();
}

void FieldStyle::drawFrame(const QStyleOption &option, const QBrush &fill, QPainter *painter) {
    const auto role = Shapes::isEnabled(option) ? QPalette::PlaceholderText : QPalette::Mid;
    Shapes::drawRounded(painter, option.rect, fill, QPen(option.palette.color(role), edgeWidth));
    if (Shapes::hasFocus(option))
        Shapes::drawFocusRing(painter, option.rect, option.palette.color(QPalette::Highlight));
}

QRect FieldStyle::textRect(const QRect &field) {
    return field.adjusted(Shapes::padding, 4, -Shapes::padding, -4);
}

QSize FieldStyle::size(const QSize &contents) {
    return {contents.width() + 2 * Shapes::padding, qMax(contents.height() + 8, Shapes::touchHeight)};
}

void FieldStyle::drawComboBox(const QStyleOptionComboBox &option, QPainter *painter) {
    const bool isLit = Shapes::isLit(option) && !option.editable;
    if (option.frame)
        drawFrame(option, isLit ? option.palette.highlight() : ground(option), painter);
    else if (isLit)
        painter->fillRect(option.rect, option.palette.highlight());
    Shapes::drawChevron(painter, comboBoxPart(option, QStyle::SC_ComboBoxArrow), Qt::DownArrow,
                        option.palette.color(isLit ? QPalette::HighlightedText : QPalette::Text));
}

QRect FieldStyle::comboBoxPart(const QStyleOptionComboBox &option, QStyle::SubControl part) {
    const QRect &whole = option.rect;
    QRect result = whole;
    if (part == QStyle::SC_ComboBoxArrow)
        result.setLeft(whole.right() + 1 - arrowWidth);
    else if (part == QStyle::SC_ComboBoxEditField)
        result.adjust(Shapes::padding, 4, -arrowWidth, -4);
    return QStyle::visualRect(option.direction, whole, result);
}

QSize FieldStyle::comboBoxSize(const QSize &contents) {
    return {contents.width() + Shapes::padding + arrowWidth,
            qMax(contents.height() + 8, Shapes::touchHeight)};
}

void FieldStyle::drawSpinBox(const QStyleOptionSpinBox &option, QPainter *painter) {
    // A press on a step is not one on the field.
    QStyleOption field = option;
    if (option.frame)
        drawFrame(field, ground(field), painter);
    if (stepsWidth(option) == 0)
        return;
    drawStep(option, QStyle::SC_SpinBoxDown, painter);
    drawStep(option, QStyle::SC_SpinBoxUp, painter);
    if (option.frame && Shapes::hasFocus(field))
        Shapes::drawFocusRing(painter, option.rect, option.palette.color(QPalette::Highlight));
}

QRect FieldStyle::spinBoxPart(const QStyleOptionSpinBox &option, QStyle::SubControl part) {
    const QRect &whole = option.rect;
    const int steps = stepsWidth(option);
    QRect result = whole;
    if (part == QStyle::SC_SpinBoxUp)
        result.setLeft(whole.right() + 1 - steps / 2);
    else if (part == QStyle::SC_SpinBoxDown)
        result = QRect(whole.right() + 1 - steps, whole.top(), steps / 2, whole.height());
    else if (part == QStyle::SC_SpinBoxEditField)
        result.adjust(Shapes::padding, 4, -steps - (steps ? 4 : Shapes::padding), -4);
    return QStyle::visualRect(option.direction, whole, result);
}

QSize FieldStyle::spinBoxSize(const QStyleOptionSpinBox &option, const QSize &contents) {
    return {contents.width() + 2 * Shapes::padding + stepsWidth(option),
            qMax(contents.height() + 8, Shapes::touchHeight)};
}
