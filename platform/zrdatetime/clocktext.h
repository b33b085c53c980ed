// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <chrono>

QString clockTime(const QDateTime &moment);
QString clockDate(const QDateTime &moment);

/// How long the text for `moment` stays right: at least a millisecond, at most a minute.
std::chrono::milliseconds untilNextMinute(const QDateTime &moment);
