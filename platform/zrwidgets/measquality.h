// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What an indicator says of the line.
enum MeasQuality {
    NotMeasured = 0, ///< does not apply, or nothing is known yet
    Good,            ///< no alarm since the last reset
    Warning,         ///< there was an alarm since the last reset
    Bad              ///< there is an alarm now
};

/// The quality that a state text stands for: "none", "ok", "off", "0" are good; "was present", "history", "2" a
/// warning; "present", "alarm", "on", "1" bad. Case does not matter; any other text is NotMeasured.
MeasQuality qualityFromState(const QString &state);
