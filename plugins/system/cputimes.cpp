// SPDX-License-Identifier: GPL-3.0-or-later
#include "cputimes.h"

#include <QByteArray>
#include <QList>

std::optional<CpuTimes> cpuTimesIn(QByteArrayView stat) {
    // user, nice, system, idle, iowait, irq, softirq, steal; guests' times after these are part of user's. Old
    // kernels give the first four only.
    constexpr qsizetype idle = 4;
    constexpr qsizetype ioWait = 5;
    constexpr qsizetype lastCounted = 8;
    constexpr qsizetype longestLine = 512;

    const QByteArray line = stat.first(qMin(stat.size(), longestLine)).toByteArray();
    const QList<QByteArray> words = line.split('\n').first().simplified().split(' ');
    if (words.first() != "cpu" || words.size() <= idle)
        return std::nullopt;
    CpuTimes times;
    for (qsizetype i = 1; i < words.size() && i <= lastCounted; ++i) {
        bool isNumber = false;
        const quint64 ticks = words[i].toULongLong(&isNumber);
        if (!isNumber)
            return std::nullopt;
        times.total += ticks;
        if (i != idle && i != ioWait)
            times.busy += ticks;
    }
    return times;
}

std::optional<int> loadBetween(const CpuTimes &earlier, const CpuTimes &later) {
    if (later.total <= earlier.total || later.busy < earlier.busy)
        return std::nullopt;
    const auto busy = static_cast<double>(later.busy - earlier.busy);
    const auto total = static_cast<double>(later.total - earlier.total);
    return qMin(100, qRound(100 * busy / total));
}
