// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <chrono>
#include <optional>

/// Reads /proc/uptime: the first number is the seconds since the start.
std::optional<std::chrono::seconds> uptimeIn(QByteArrayView uptime);
