// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QPainter;
class QStyleOption;

/// Check boxes and radio buttons. The whole of them, text and all, can be pressed and has the focus ring.
namespace CheckStyle {

/// Side of the box, across the circle.
constexpr int markSize = 28;
/// Between the mark and the text.
constexpr int gap = 12;

void drawBox(const QStyleOption &option, QPainter *painter);
void drawCircle(const QStyleOption &option, QPainter *painter);
QRect markRect(const QStyleOption &option);
QRect textRect(const QStyleOption &option);
QSize size(const QSize &contents);

} // namespace CheckStyle
