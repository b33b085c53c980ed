// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette qualityPalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor good = pick(0x1E8E3E, 0x4CC36A);
    const QColor warning = pick(0xE08A00, 0xFFB74D);
    const QColor bad = pick(0xE83A36, 0xFF6B6B);
    const QColor notApplicable = pick(0x8A90B4, 0x6B7297);

    QPalette palette = genericWindowPalette(set);
    palette.setColor(QPalette::Active, QPalette::Window, good);
    palette.setColor(QPalette::Inactive, QPalette::Window, warning);
    palette.setColor(QPalette::Disabled, QPalette::Window, bad);
    palette.setColor(QPalette::Mid, notApplicable);
    return palette;
}
