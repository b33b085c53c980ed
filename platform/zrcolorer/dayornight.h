// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "palettefactory.h"

#include <QColor>

/// Picks a colour of one set: each palette's file lists its colours as pairs, for the day and for the night.
class DayOrNight {
public:
    explicit DayOrNight(PaletteFactory::Set set) : isNight(set == PaletteFactory::Night) {}

    /// Both as 0xRRGGBB.
    QColor operator()(QRgb day, QRgb night) const { return QColor(isNight ? night : day); }

private:
    bool isNight;
};
