// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoryuse.h"

#include <QByteArray>
#include <QHash>

namespace {

/// Amounts by name, in bytes: "MemTotal:  16314348 kB".
QHash<QByteArray, quint64> amountsIn(QByteArrayView meminfo) {
    QHash<QByteArray, quint64> amounts;
    for (const QByteArray &line : meminfo.toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray amount = line.mid(colon + 1).trimmed();
        bool isNumber = false;
        const quint64 kilobytes = amount.split(' ').first().toULongLong(&isNumber);
        if (colon > 0 && isNumber)
            amounts.insert(line.left(colon), kilobytes * 1024);
    }
    return amounts;
}

} // namespace

std::optional<MemoryUse> memoryUseIn(QByteArrayView meminfo) {
    const QHash<QByteArray, quint64> amounts = amountsIn(meminfo);
    const quint64 total = amounts.value("MemTotal");
    if (total == 0)
        return std::nullopt;
    // Kernels before 3.14 do not say what is available.
    const quint64 free = amounts.value("MemFree") + amounts.value("Buffers") + amounts.value("Cached");
    const quint64 available = qMin(total, amounts.value("MemAvailable", free));
    return MemoryUse{total - available, total};
}
