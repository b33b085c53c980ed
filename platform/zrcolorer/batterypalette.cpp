// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettes.h"

QPalette batteryPalette() {
    // Not quite white: the outline is seen on the dark column, where its panel shows it too.
    const QColor outline(0xF4, 0xF4, 0xFF);
    const QColor ink(0x1B, 0x23, 0x40);

    QPalette palette = genericWindowPalette();
    palette.setColor(QPalette::Button, outline);
    palette.setColor(QPalette::ButtonText, ink);
    return palette;
}
