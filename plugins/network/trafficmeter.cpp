// SPDX-License-Identifier: GPL-3.0-or-later
#include "trafficmeter.h"

#include <QSet>

namespace {

quint64 bitsPerSecond(quint64 earlier, quint64 later, std::chrono::milliseconds time) {
    const double bits = 8.0 * static_cast<double>(later - earlier);
    return static_cast<quint64>(bits * 1000 / static_cast<double>(time.count()));
}

} // namespace

std::optional<TrafficRate> TrafficMeter::rate(const NetworkInterface &interface,
                                              std::chrono::milliseconds moment) {
    const TrafficCounters &now = interface.counters;
    const Reading last = lastReadings.value(interface.number);
    lastReadings.insert(interface.number, {interface.name, now, moment});
    const std::chrono::milliseconds time = moment - last.moment;
    const bool isComparable = last.name == interface.name && time.count() > 0 &&
                              now.received >= last.counters.received && now.sent >= last.counters.sent;
    if (!isComparable)
        return std::nullopt;
    return TrafficRate{bitsPerSecond(last.counters.received, now.received, time),
                       bitsPerSecond(last.counters.sent, now.sent, time)};
}

void TrafficMeter::keepOnly(const QList<NetworkInterface> &interfaces) {
    QSet<int> numbers;
    for (const NetworkInterface &interface : interfaces)
        numbers.insert(interface.number);
    lastReadings.removeIf([&](const auto &reading) { return !numbers.contains(reading.key()); });
}
