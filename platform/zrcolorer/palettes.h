// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "palettefactory.h"

// One function a palette, each in the file named after it.
QPalette genericWindowPalette(PaletteFactory::Set set);
QPalette batteryPalette(PaletteFactory::Set set);
QPalette chromePalette(PaletteFactory::Set set);
QPalette picturePalette(PaletteFactory::Set set);
QPalette qualityPalette(PaletteFactory::Set set);
QPalette sliderPalette(PaletteFactory::Set set);
QPalette timeButtonPalette(PaletteFactory::Set set);
