// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QPalette>
#include <QPen>
#include <QRectF>

class QPainter;
class QStyleOption;

/// What the controls of all families are put together from. Sizes are in pixels.
namespace Shapes {

constexpr qreal radius = 10;
constexpr qreal focusRingWidth = 3;
/// What the ring and the gap inside it take from a control on each side.
constexpr qreal focusMargin = 5;
/// The least height of what a gloved thumb has to hit.
constexpr int touchHeight = 52;
constexpr int padding = 12;

/// Pressed or checked.
bool isLit(const QStyleOption &option);
bool isEnabled(const QStyleOption &option);
bool hasFocus(const QStyleOption &option);
/// What is drawn over a ground that turns to the accent when it is lit; `usual` is its role otherwise.
QColor inkOn(const QStyleOption &option, QPalette::ColorRole usual);

/// The pen lies inside `rect`.
void drawRounded(QPainter *painter, const QRectF &rect, const QBrush &fill, const QPen &pen,
                 qreal cornerRadius = radius);
void drawFocusRing(QPainter *painter, const QRectF &rect, const QColor &color);

/// Two lines that meet in a point: which way something opens or moves.
void drawChevron(QPainter *painter, const QRectF &rect, Qt::ArrowType direction, const QColor &color);
void drawCheckMark(QPainter *painter, const QRectF &rect, const QColor &color);

} // namespace Shapes
