// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette batteryPalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    // Not quite white: the outline is seen on the dark column, where its panel shows it too.
    const QColor outline = pick(0xF4F4FF, 0xB4B9DA);
    const QColor ink = pick(0x1B2340, 0x10142A);
    const QColor boltEdge = pick(0x1C2649, 0x2B3357);

    QPalette palette = picturePalette(set);
    palette.setColor(QPalette::Button, outline);
    palette.setColor(QPalette::ButtonText, ink);
    palette.setColor(QPalette::Dark, boltEdge);
    return palette;
}
