// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyle>

class QPainter;
class QStyleOptionSlider;

/// Sliders with a round handle as large as a thumb.
namespace SliderStyle {

/// Of the handle along the slider, with its ring.
constexpr int handleLength = 40;

QRect partRect(const QStyleOptionSlider &option, QStyle::SubControl part);
void draw(const QStyleOptionSlider &option, QPainter *painter);

} // namespace SliderStyle
