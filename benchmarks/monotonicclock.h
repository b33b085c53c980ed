// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <chrono>

/// Nanoseconds on a clock that all processes share and nobody sets.
inline qint64 monotonicNs() {
    using std::chrono::nanoseconds;
    return nanoseconds(std::chrono::steady_clock::now().time_since_epoch()).count();
}
