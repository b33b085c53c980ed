// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <palettefactory.h>

/// Which set of palettes the screens wear: a value that the user chooses, "colours" in the group "look",
/// "day" or "night". GUI thread only.
namespace ColourChoice {

/// The stored choice; the day's where none is stored, or none that is known.
PaletteFactory::Set stored();
/// Dresses the application in a set; everything that is shown follows at once.
void wear(PaletteFactory::Set set);
void store(PaletteFactory::Set set);

} // namespace ColourChoice
