// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "trafficmeter.h"

#include <QElapsedTimer>

/// An interface with its rates.
struct MeasuredInterface {
    NetworkInterface interface;
    std::optional<TrafficRate> rate;

    bool operator==(const MeasuredInterface &) const = default;
};

/// Asks the kernel for its network interfaces.
class NetworkReader {
public:
    /// `directory` is usually /sys/class/net.
    explicit NetworkReader(const QString &directory);

    /// The rates are those since the reading before.
    QList<MeasuredInterface> read();

private:
    QString netDirectory;
    QElapsedTimer clock;
    TrafficMeter meter;
};
