// SPDX-License-Identifier: GPL-3.0-or-later
#include "busreceiver.h"

#include <utility>

std::optional<QDBusMessage> BusReceiver::next() {
    const QMutexLocker lock(&mutex);
    if (waiting.isEmpty())
        return std::nullopt;
    return waiting.takeFirst();
}

bool BusReceiver::isEmpty() const {
    const QMutexLocker lock(&mutex);
    return waiting.isEmpty();
}

qsizetype BusReceiver::takeCount() {
    const QMutexLocker lock(&mutex);
    isFlooded = isFlooded && count > 0;
    return std::exchange(count, 0);
}

void BusReceiver::releaseNewest() {
    {
        const QMutexLocker lock(&mutex);
        waiting += std::exchange(newest, {});
    }
    emit filled();
}

void BusReceiver::take(const QDBusMessage &message) {
    bool isFirst = false;
    bool isFloodsFirst = false;
    {
        const QMutexLocker lock(&mutex);
        if (!isFlooded && waiting.size() < mostWaiting) {
            isFirst = waiting.isEmpty();
            waiting.append(message);
        } else {
            isFloodsFirst = !std::exchange(isFlooded, true);
            for (const QDBusMessage &overtaken : std::exchange(waiting, {}))
                keepNewest(overtaken);
            keepNewest(message);
        }
    }
    if (isFirst)
        emit filled();
    if (isFloodsFirst)
        emit flooded();
}

void BusReceiver::keepNewest(const QDBusMessage &message) {
    ++count;
    newest.removeIf([&](const QDBusMessage &older) { return older.member() == message.member(); });
    newest.append(message);
}
