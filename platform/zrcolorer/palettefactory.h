// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QString>

/// The instrument's palettes, by name.
///
/// | name | for |
/// |---|---|
/// | "GenericWindow" | content: pages, windows, tiles, buttons |
/// | "Chrome" | header and left column; Base is the sunk ground of the lamps |
/// | "Battery" | the battery in the left column: Button is its outline there, the texts are those of its panel |
/// | "TimeButton" | the clock in the header |
/// | "quality" | lamps and shapes only: Window of Active = good, Inactive = warning, Disabled = bad |
///
/// In every palette: Window/WindowText is the ground and text on it; Base/Text tiles, lists and text on them;
/// Button/ButtonText buttons; Highlight/HighlightedText what is checked or pressed, and the focus ring; Mid
/// 1-pixel edges; Dark separating lines; PlaceholderText softer text. Any thread.
class PaletteFactory {
public:
    PaletteFactory() = delete;

    /// The palette of that name; "GenericWindow" for a name that is unknown, which is logged.
    static QPalette getPalette(const QString &name);
    static QStringList names();
};
