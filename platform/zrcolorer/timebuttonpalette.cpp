// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettes.h"

QPalette timeButtonPalette(PaletteFactory::Set set) {
    QPalette palette = chromePalette(set);
    // The clock lies flat on the header.
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, QPalette::Button, palette.color(group, QPalette::Window));
    return palette;
}
