// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <chrono>

/// How long a command may take unless the card states another time.
constexpr std::chrono::milliseconds usualTimeLimit{2000};

/// The time limit for the commands of a card that replied with `options`: a line "COMMAND-TIMEOUT=milliseconds" states
/// it, between 100 and 10000; numbers beyond are taken as the nearer of the two. usualTimeLimit without such a line.
std::chrono::milliseconds statedTimeLimit(const QString &options);
