// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <optional>

/// Main memory, in bytes.
struct MemoryUse {
    quint64 used = 0;
    quint64 total = 0;
};

/// Reads /proc/meminfo. Used is what programs could not have: caches do not count. Nothing when the total is
/// missing.
std::optional<MemoryUse> memoryUseIn(QByteArrayView meminfo);
