// SPDX-License-Identifier: GPL-3.0-or-later
#include "networkinterface.h"

#include <boundedread.h>

#include <QDir>

#include <algorithm>

#include <net/if.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostInterfaces = 1000;

QByteArray word(const QString &file) {
    constexpr qint64 longestWord = 64;
    return boundedRead(file, longestWord).trimmed();
}

NetworkInterface interfaceAt(const QString &directory, const QString &name) {
    const QString path = directory + u'/' + name + u'/';
    const unsigned int flags = word(path + "flags"_L1).toUInt(nullptr, 16);
    NetworkInterface interface;
    interface.name = name;
    interface.number = word(path + "ifindex"_L1).toInt();
    interface.state = linkState(word(path + "operstate"_L1), flags);
    interface.isLoopback = flags & IFF_LOOPBACK;
    interface.counters.received = word(path + "statistics/rx_bytes"_L1).toULongLong();
    interface.counters.sent = word(path + "statistics/tx_bytes"_L1).toULongLong();
    // -1, or an error of reading, where there is no link to have a speed.
    if (const int speed = word(path + "speed"_L1).toInt(); speed > 0)
        interface.speedMbits = speed;
    return interface;
}

bool standsBefore(const NetworkInterface &one, const NetworkInterface &other) {
    return std::tie(one.isLoopback, one.number, one.name) <
           std::tie(other.isLoopback, other.number, other.name);
}

} // namespace

LinkState linkState(const QByteArray &operstate, unsigned int flags) {
    if (!(flags & IFF_UP))
        return LinkState::Off;
    if (operstate == "up")
        return LinkState::Up;
    if (operstate == "down" || operstate == "lowerlayerdown" || operstate == "notpresent")
        return LinkState::NoLink;
    if (operstate == "dormant" || operstate == "testing")
        return LinkState::Waiting;
    // Loopback and tunnels have no link that could be up or down; they work once switched on.
    if (operstate == "unknown" && flags & (IFF_LOOPBACK | IFF_POINTOPOINT))
        return LinkState::Up;
    return LinkState::Unknown;
}

QList<NetworkInterface> interfacesIn(const QString &directory) {
    QList<NetworkInterface> interfaces;
    for (const QString &name : QDir(directory).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        if (interfaces.size() == mostInterfaces)
            break;
        interfaces.append(interfaceAt(directory, name));
    }
    std::sort(interfaces.begin(), interfaces.end(), standsBefore);
    return interfaces;
}
