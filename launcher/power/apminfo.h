// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// One reading of the kernel's power state: a line of /proc/apm (kernel interface "Advanced Power Management").
///
/// A default-made record holds numbers that no reading has, so that it differs from every reading.
struct ApmInfo {
    enum BatteryStatus { High = 0, Low = 1, Critical = 2, Charging = 3, Absent = 4 };
    static constexpr int unknown = -1;

    QString driverVersion;
    int biosMajor = -2;
    int biosMinor = -2;
    int apmFlags = -2;
    /// 0 off-line, 1 on-line, 2 on backup power, 0xff unknown.
    int acLineStatus = -2;
    /// A BatteryStatus, or 0xff when it is unknown.
    int batteryStatus = -2;
    int batteryFlag = -2;
    /// Charge in per cent, or `unknown`.
    int percentage = -2;
    /// Remaining time in `units`, or `unknown`.
    int time = -2;
    /// The kernel's own word: "min", "sec" or "?".
    QString units;

    bool operator==(const ApmInfo &) const = default;
};

/// Reads a trimmed line, columns separated by single blanks. A column that is absent or no number is 0.
ApmInfo apmInfo(const QString &line);
