// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardaddress.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int usualBaudRate = 115200;
constexpr int highestPort = 65535;
constexpr int highestBaudRate = 4'000'000;

std::optional<int> numberIn(const QString &text, int highest) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < 1 || number > highest)
        return std::nullopt;
    return number;
}

std::optional<CardAddress> tcpAddress(const QString &rest) {
    const qsizetype colon = rest.lastIndexOf(u':');
    const std::optional<int> port = numberIn(rest.mid(colon + 1), highestPort);
    QString host = rest.left(qMax<qsizetype>(colon, 0));
    if (host.startsWith(u'[') && host.endsWith(u']'))
        host = host.sliced(1, host.size() - 2);
    if (host.isEmpty() || !port)
        return std::nullopt;
    return CardAddress{CardAddress::Tcp, host, *port};
}

std::optional<CardAddress> serialAddress(const QString &rest) {
    const qsizetype colon = rest.lastIndexOf(u':');
    if (rest.isEmpty() || colon == 0)
        return std::nullopt;
    if (colon < 0)
        return CardAddress{CardAddress::Serial, rest, usualBaudRate};
    const std::optional<int> baudRate = numberIn(rest.mid(colon + 1), highestBaudRate);
    if (!baudRate)
        return std::nullopt;
    return CardAddress{CardAddress::Serial, rest.left(colon), *baudRate};
}

} // namespace

std::optional<CardAddress> cardAddress(const QString &text) {
    const qsizetype colon = text.indexOf(u':');
    const QString kind = text.left(qMax<qsizetype>(colon, 0));
    const QString rest = text.mid(colon + 1);
    if (kind == "unix"_L1 && !rest.isEmpty())
        return CardAddress{CardAddress::Unix, rest, 0};
    if (kind == "tcp"_L1)
        return tcpAddress(rest);
    if (kind == "serial"_L1)
        return serialAddress(rest);
    return std::nullopt;
}
