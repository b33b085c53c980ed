// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QStringList>

#include <optional>

/// What an interface's link is at, as the user has to see it.
enum class LinkState {
    Unknown, ///< the driver does not tell
    Up,
    Waiting, ///< the link is there but not open yet
    NoLink,  ///< switched on, nothing connected
    Off      ///< switched off
};

/// Bytes since the interface came up.
struct TrafficCounters {
    quint64 received = 0;
    quint64 sent = 0;

    bool operator==(const TrafficCounters &) const = default;
};

/// One network interface at one moment.
struct NetworkInterface {
    QString name;
    /// The kernel's number. An interface that goes and comes back gets a new one.
    int number = 0;
    LinkState state = LinkState::Unknown;
    std::optional<int> speedMbits;
    bool isLoopback = false;
    TrafficCounters counters;
    /// IPv4 first.
    QStringList addresses;

    bool operator==(const NetworkInterface &) const = default;
};

/// The link's state from the kernel's word for it and the interface's flags (IFF_UP and so on).
LinkState linkState(const QByteArray &operstate, unsigned int flags);

/// The interfaces that `directory`, usually /sys/class/net, tells of, without their addresses: in the kernel's
/// order, the loopback last. What cannot be read counts as unknown or 0; at most 1000 are read.
QList<NetworkInterface> interfacesIn(const QString &directory);
