// SPDX-License-Identifier: GPL-3.0-or-later
#include "crashes.h"

#include <algorithm>

#include <ctime>

using namespace std::chrono_literals;

QList<Crash> withinLastMinute(const QList<Crash> &crashes, std::chrono::milliseconds now) {
    QList<Crash> counting;
    std::copy_if(crashes.cbegin(), crashes.cend(), std::back_inserter(counting), [now](const Crash &crash) {
        // One of the future belongs to an earlier start of the machine.
        return crash.moment <= now && now - crash.moment <= 1min;
    });
    return counting;
}

std::optional<Crash> crashToLeaveOut(const QList<Crash> &crashes) {
    if (crashes.size() < crashesToLeaveOut)
        return std::nullopt;
    const auto countOf = [&crashes](const QString &library) {
        return std::count_if(crashes.cbegin(), crashes.cend(),
                             [&library](const Crash &crash) { return crash.library == library; });
    };
    // The first of equals from behind is the latest.
    return *std::max_element(crashes.crbegin(), crashes.crend(),
                             [&countOf](const Crash &one, const Crash &other) {
                                 return countOf(one.library) < countOf(other.library);
                             });
}

std::chrono::milliseconds sinceMachineStart() {
    timespec moment{};
    ::clock_gettime(CLOCK_BOOTTIME, &moment);
    return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::seconds(moment.tv_sec) +
                                                                 std::chrono::nanoseconds(moment.tv_nsec));
}
