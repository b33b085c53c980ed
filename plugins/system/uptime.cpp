// SPDX-License-Identifier: GPL-3.0-or-later
#include "uptime.h"

#include <QByteArray>
#include <QList>

std::optional<std::chrono::seconds> uptimeIn(QByteArrayView uptime) {
    // A thousand years; what is beyond is not a time.
    constexpr double mostSeconds = 1000.0 * 366 * 86400;
    constexpr qsizetype longestLine = 64;
    const QByteArray line = uptime.first(qMin(uptime.size(), longestLine)).toByteArray().simplified();
    bool isNumber = false;
    const double seconds = line.split(' ').first().toDouble(&isNumber);
    if (!isNumber || !(seconds >= 0) || seconds > mostSeconds)
        return std::nullopt;
    return std::chrono::seconds(static_cast<qint64>(seconds));
}
