// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettes.h"

QPalette genericWindowPalette() {
    const QColor page(0xEB, 0xE9, 0xFF);
    const QColor card(0xFF, 0xFF, 0xFF);
    const QColor edge(0xC6, 0xC3, 0xEA);
    const QColor ink(0x1B, 0x23, 0x40);
    const QColor softInk(0x4A, 0x52, 0x80);
    const QColor accent(0x3D, 0x57, 0xD6);
    const QColor chrome(0x2D, 0x3B, 0x6F);
    const QColor line(0x1C, 0x26, 0x49);
    const QColor onChrome(0xFF, 0xFF, 0xFF);

    QPalette palette;
    palette.setColor(QPalette::Window, page);
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Base, card);
    palette.setColor(QPalette::AlternateBase, page);
    palette.setColor(QPalette::Text, ink);
    palette.setColor(QPalette::Button, chrome);
    palette.setColor(QPalette::ButtonText, onChrome);
    palette.setColor(QPalette::BrightText, onChrome);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, onChrome);
    palette.setColor(QPalette::Link, accent);
    palette.setColor(QPalette::LinkVisited, softInk);
    palette.setColor(QPalette::ToolTipBase, card);
    palette.setColor(QPalette::ToolTipText, ink);
    palette.setColor(QPalette::PlaceholderText, softInk);
    palette.setColor(QPalette::Light, card);
    palette.setColor(QPalette::Midlight, page);
    palette.setColor(QPalette::Mid, edge);
    palette.setColor(QPalette::Dark, line);
    palette.setColor(QPalette::Shadow, line);

    palette.setColor(QPalette::Disabled, QPalette::WindowText, softInk);
    palette.setColor(QPalette::Disabled, QPalette::Text, softInk);
    palette.setColor(QPalette::Disabled, QPalette::Button, edge);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, softInk);
    return palette;
}
