// SPDX-License-Identifier: GPL-3.0-or-later
#include "dayornight.h"
#include "palettes.h"

QPalette genericWindowPalette(PaletteFactory::Set set) {
    const DayOrNight pick(set);
    const QColor page = pick(0xEBE9FF, 0x171C33);
    const QColor card = pick(0xFFFFFF, 0x202744);
    const QColor groove = pick(0xC6C3EA, 0x39426E);
    // By night the shades of page, tile and button are too near each other to tell where a control ends.
    const QColor edge = pick(0xC6C3EA, 0x6873A8);
    const QColor ink = pick(0x1B2340, 0xE8E9F7);
    const QColor softInk = pick(0x424A77, 0xB4B9DA);
    const QColor accent = pick(0x334CC2, 0x8C9EFF);
    const QColor onAccent = pick(0xFFFFFF, 0x10142A);
    // By night not the chrome of header and column: a button would not be seen on the page.
    const QColor button = pick(0x2D3B6F, 0x39426E);
    const QColor onButton = pick(0xFFFFFF, 0xE8E9F7);
    const QColor disabledButton = pick(0xC6C3EA, 0x202744);
    // Deeper by day, and lighter by night, than the accent: it is text.
    const QColor link = pick(0x2D3B6F, 0xA9B7FF);
    // Separators, and around dialogs.
    const QColor line = pick(0x1C2649, 0x6873A8);
    const QColor shadow = pick(0x1C2649, 0x080A14);

    QPalette palette;
    palette.setColor(QPalette::Window, page);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, card);
    palette.setColor(QPalette::AlternateBase, page);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, button);
    palette.setColor(QPalette::ButtonText, onButton);
    palette.setColor(QPalette::BrightText, onButton);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onAccent);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, softInk);
    palette.setColor(QPalette::ToolTipBase, card);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, softInk);
    palette.setColor(QPalette::Light, card);
    palette.setColor(QPalette::Midlight, edge);
    palette.setColor(QPalette::Mid, groove);
    palette.setColor(QPalette::Dark, line);
    palette.setColor(QPalette::Shadow, shadow);

    palette.setColor(QPalette::Disabled, QPalette::WindowText, softInk);
    palette.setColor(QPalette::Disabled, QPalette::Text, softInk);
    palette.setColor(QPalette::Disabled, QPalette::Button, disabledButton);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, softInk);
    palette.setColor(QPalette::Disabled, QPalette::Midlight, groove);
    return palette;
}
