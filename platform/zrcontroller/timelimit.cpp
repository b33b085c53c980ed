// SPDX-License-Identifier: GPL-3.0-or-later
#include "timelimit.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shortestMs = 100;
// The screen stands still while a command waits: nobody waits longer than this without pulling the card.
constexpr int longestMs = 10'000;

} // namespace

std::chrono::milliseconds statedTimeLimit(const QString &options) {
    constexpr QLatin1StringView key = "COMMAND-TIMEOUT="_L1;
    for (const QStringView line : QStringView(options).split(u'\n')) {
        if (!line.startsWith(key))
            continue;
        bool isNumber = false;
        const int milliseconds = line.sliced(key.size()).toInt(&isNumber);
        if (isNumber)
            return std::chrono::milliseconds(qBound(shortestMs, milliseconds, longestMs));
    }
    return usualTimeLimit;
}
