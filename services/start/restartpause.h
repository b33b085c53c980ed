// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <chrono>

/// How long a start waits that comes after so many failed runs: 0, 1, 2, 4, 8 … seconds, never more than `longest`.
std::chrono::seconds restartPause(qint64 failedRuns, std::chrono::seconds longest);

/// How many failed runs there are in a row after one more that failed. One that lasted more than a minute worked; it
/// starts a new row.
qint64 failedRunsAfterFailure(qint64 before, std::chrono::milliseconds lasted);
