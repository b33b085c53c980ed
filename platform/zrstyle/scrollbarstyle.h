// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBrush>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

/// Scroll bars for a gloved thumb: wide, without arrows, a handle that is never too short to hold.
namespace ScrollBarStyle {

/// Width of a vertical scroll bar, height of a horizontal one, in pixels.
constexpr int extent = 28;

QRect partRect(const QStyleOptionSlider &option, QStyle::SubControl part);
void draw(const QStyleOptionSlider &option, const QBrush &ground, QPainter *painter);

} // namespace ScrollBarStyle
