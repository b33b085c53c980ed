// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <optional>

/// What all processors together have done since the start, in clock ticks.
struct CpuTimes {
    quint64 busy = 0;
    quint64 total = 0;
};

/// Reads the first line of /proc/stat; nothing when that is not the line of all processors.
std::optional<CpuTimes> cpuTimesIn(QByteArrayView stat);

/// Load in percent between two readings; nothing when no time has passed or the counters went backwards.
std::optional<int> loadBetween(const CpuTimes &earlier, const CpuTimes &later);
