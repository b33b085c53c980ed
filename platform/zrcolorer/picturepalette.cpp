// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette picturePalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor focusRing = pick(0xC6C3EA, 0xB4B9DA);
    // As on the header: pictures stand on the dark column by day, too.
    const QColor accent = pick(0x8C9EFF, 0x8C9EFF);
    const QColor onAccent = pick(0x10142A, 0x10142A);

    QPalette palette = genericWindowPalette(set);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::Mid, focusRing);
    return palette;
}
