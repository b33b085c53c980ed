// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettes.h"

QPalette qualityPalette() {
    const QColor good(0x1E, 0x8E, 0x3E);
    const QColor warning(0xE0, 0x8A, 0x00);
    const QColor bad(0xD3, 0x2F, 0x2F);

    QPalette palette = genericWindowPalette();
    palette.setColor(QPalette::Active, QPalette::Window, good);
    palette.setColor(QPalette::Inactive, QPalette::Window, warning);
    palette.setColor(QPalette::Disabled, QPalette::Window, bad);
    return palette;
}
