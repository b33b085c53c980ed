// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>

/// The shapes of the battery picture, 61 x 36 pixels, origin at the top left.
namespace BatteryPicture {

constexpr int width = 61;
constexpr int height = 36;

/// A frame of one pixel with a terminal at its right; odd-even fill.
QPainterPath outerPath();
/// The charge: empty below one per cent; above a hundred it reaches past the body.
QPainterPath innerPath(int percent);
/// The bolt of a battery that is being charged.
QPainterPath chargingPath();

} // namespace BatteryPicture
