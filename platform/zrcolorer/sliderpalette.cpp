// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette sliderPalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor handle = pick(0x2D3B6F, 0xB4B9DA);
    const QColor onHandle = pick(0xFFFFFF, 0x10142A);

    QPalette palette = genericWindowPalette(set);
    palette.setColor(QPalette::Button, handle);
    palette.setColor(QPalette::ButtonText, onHandle);
    // A handle that cannot be moved looks like its groove.
    palette.setColor(QPalette::Disabled, QPalette::Button, palette.color(QPalette::Mid));
    palette.setColor(QPalette::Disabled, QPalette::ButtonText,
                     palette.color(QPalette::Disabled, QPalette::Text));
    return palette;
}
