// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette picturePalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor focusRing = pick(0xC6C3EA, 0xB4B9DA);

    QPalette palette = genericWindowPalette(set);
    palette.setColor(QPalette::Mid, focusRing);
    return palette;
}
