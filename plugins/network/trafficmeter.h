// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networkinterface.h"

#include <QHash>

#include <chrono>

/// Bits in a second, in both directions.
struct TrafficRate {
    quint64 received = 0;
    quint64 sent = 0;

    bool operator==(const TrafficRate &) const = default;
};

/// Makes rates out of counters that are read again and again.
class TrafficMeter {
public:
    /// Takes the counters of `interface` at `moment` of any steady clock. The rate since the reading before;
    /// nothing for an interface that was not there before, and for counters that went backwards.
    std::optional<TrafficRate> rate(const NetworkInterface &interface, std::chrono::milliseconds moment);
    /// Forgets the interfaces that are no longer there.
    void keepOnly(const QList<NetworkInterface> &interfaces);

private:
    struct Reading {
        QString name;
        TrafficCounters counters;
        std::chrono::milliseconds moment{};
    };

    QHash<int, Reading> lastReadings;
};
