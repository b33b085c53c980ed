// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette chromePalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor chrome = pick(0x2D3B6F, 0x12172B);
    const QColor sunk = pick(0x24305C, 0x0D1120);
    const QColor line = pick(0x1C2649, 0x6873A8);
    const QColor groove = pick(0x5A69A6, 0x39426E);
    const QColor edge = pick(0x7F8DC6, 0x6873A8);
    const QColor onChrome = pick(0xFFFFFF, 0xE8E9F7);
    // Lighter than on the content by day: the accent of the pages would not be seen on navy.
    const QColor accent = pick(0x8C9EFF, 0x8C9EFF);
    const QColor onAccent = pick(0x10142A, 0x10142A);
    const QColor soft = pick(0xD2D8F0, 0xB4B9DA);

    QPalette palette = genericWindowPalette(set);
    palette.setColor(QPalette::Window, chrome);
    palette.setColor(QPalette::WindowText, onChrome);
    palette.setColor(QPalette::Base, sunk);
    palette.setColor(QPalette::AlternateBase, chrome);
    palette.setColor(QPalette::Text, onChrome);
    palette.setColor(QPalette::Button, sunk);
    palette.setColor(QPalette::ButtonText, onChrome);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::Link, onChrome);
    palette.setColor(QPalette::LinkVisited, soft);
    palette.setColor(QPalette::PlaceholderText, soft);
    palette.setColor(QPalette::Midlight, edge);
    palette.setColor(QPalette::Mid, groove);
    palette.setColor(QPalette::Dark, line);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, soft);
    palette.setColor(QPalette::Disabled, QPalette::Text, soft);
    palette.setColor(QPalette::Disabled, QPalette::Button, sunk);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, soft);
    palette.setColor(QPalette::Disabled, QPalette::Midlight, groove);
    return palette;
}
