// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>
#include <QString>

/// The instrument's palettes, by name, in two sets: for the day, and for the dark.
///
/// | name | for |
/// |---|---|
/// | "GenericWindow" | content: pages, windows, tiles, buttons |
/// | "Chrome" | header and left column; Base is the sunk ground of the lamps |
/// | "Battery" | the battery in the left column: Button is its outline there, the texts are those of its panel |
/// | "Paper" | content whose ground stays light by night |
/// | "Picture" | pictures that can be pressed: Mid is their focus ring |
/// | "Slider" | sliders: Button is the handle |
/// | "TimeButton" | the clock in the header |
/// | "quality" | lamps and shapes only: Window of Active = good, Inactive = warning, Disabled = bad; Mid = none of them |
///
/// In every palette: Window/WindowText is the ground and text on it; Base/Text tiles, lists and text on them;
/// Button/ButtonText buttons; Highlight/HighlightedText what is checked or pressed, and the focus ring; Mid
/// grooves, and 1-pixel lines between rows; Midlight edges of what its text or picture tells; Dark separating lines,
/// and frames of dialogs and panels; PlaceholderText softer text, and outlines of what nothing else tells (fields,
/// boxes). Any thread.
class PaletteFactory {
public:
    enum Set { Day, Night };

    PaletteFactory() = delete;

    /// The set that `getPalette` takes from; Day to begin with.
    static Set set();
    /// Widgets do not follow by themselves; see StyleOverride.
    static void setSet(Set set);

    /// The palette of that name; "GenericWindow" for a name that is unknown, which is logged.
    static QPalette getPalette(const QString &name);
    static QStringList names();
};
