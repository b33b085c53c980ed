// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// Levels in per cent, as "amixer" lists them.
struct MixerLevels {
    int speaker = 0;
    int microphone = 0;

    bool operator==(const MixerLevels &) const = default;
};

/// The level that one line of the listing states for `control`, or nothing when it does not speak of it. The bracket has
/// to close the line: with text behind it, or with anything but a whole number in it, the level reads as 0.
std::optional<int> levelInMixerLine(const QString &line, const QString &control);

/// The last statement of the listing counts for each.
MixerLevels mixerLevels(const QString &listing);
