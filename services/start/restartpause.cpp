// SPDX-License-Identifier: GPL-3.0-or-later
#include "restartpause.h"

#include <algorithm>

using namespace std::chrono_literals;

std::chrono::seconds restartPause(qint64 failedRuns, std::chrono::seconds longest) {
    // More doublings than any pause needs.
    constexpr qint64 mostDoublings = 30;
    if (failedRuns <= 0)
        return 0s;
    return std::min(std::chrono::seconds(qint64(1) << std::min(failedRuns - 1, mostDoublings)), longest);
}

qint64 failedRunsAfterFailure(qint64 before, std::chrono::milliseconds lasted) {
    return lasted > 1min ? 0 : before + 1;
}
