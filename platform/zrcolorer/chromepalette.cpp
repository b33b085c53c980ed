// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettes.h"

QPalette chromePalette() {
    const QColor chrome(0x2D, 0x3B, 0x6F);
    const QColor sunk(0x24, 0x30, 0x5C);
    const QColor line(0x1C, 0x26, 0x49);
    const QColor edge(0x5A, 0x69, 0xA6);
    const QColor onChrome(0xFF, 0xFF, 0xFF);
    // Lighter than on the content: the accent of the pages would not be seen on navy.
    const QColor accent(0x8C, 0x9E, 0xFF);
    const QColor onAccent(0x10, 0x14, 0x2A);
    const QColor soft(0xD2, 0xD8, 0xF0);

    QPalette palette = genericWindowPalette();
    palette.setColor(QPalette::Window, chrome);
    palette.setColor(QPalette::WindowText, onChrome);
    palette.setColor(QPalette::Base, sunk);
    palette.setColor(QPalette::AlternateBase, chrome);
    palette.setColor(QPalette::Text, onChrome);
    palette.setColor(QPalette::Button, sunk);
    palette.setColor(QPalette::ButtonText, onChrome);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::PlaceholderText, soft);
    palette.setColor(QPalette::Mid, edge);
    palette.setColor(QPalette::Dark, line);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, soft);
    palette.setColor(QPalette::Disabled, QPalette::Text, soft);
    palette.setColor(QPalette::Disabled, QPalette::Button, sunk);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, soft);
    return palette;
}
