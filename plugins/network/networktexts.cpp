// SPDX-License-Identifier: GPL-3.0-or-later
#include "networktexts.h"

#include <amounts.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An address without a run of zeros in it does not fit beside the other columns.
QStringList linesOfAddress(const QString &address) {
    constexpr qsizetype longestLine = 30;
    constexpr qsizetype groupsInLine = 4;
    if (address.size() <= longestLine)
        return {address};
    const QStringList groups = address.split(u':');
    return {groups.first(groupsInLine).join(u':') + u':', groups.sliced(groupsInLine).join(u':')};
}

} // namespace

QString NetworkTexts::stateText(LinkState state) {
    switch (state) {
    case LinkState::Up:
        return tr("Up");
    case LinkState::Waiting:
        return tr("Waiting");
    case LinkState::NoLink:
        return tr("No link");
    case LinkState::Off:
        return tr("Off");
    case LinkState::Unknown:
        break;
    }
    return tr("Unknown");
}

QString NetworkTexts::linkText(const NetworkInterface &interface) {
    QString state = stateText(interface.state);
    if (interface.state != LinkState::Up || !interface.speedMbits)
        return state;
    constexpr quint64 mega = 1'000'000;
    return tr("%1, %2").arg(state, Amounts::bitRate(static_cast<quint64>(*interface.speedMbits) * mega));
}

QString NetworkTexts::rateText(const std::optional<quint64> &bitsPerSecond) {
    return bitsPerSecond ? Amounts::bitRate(*bitsPerSecond) : u"\u2013"_s;
}

QStringList NetworkTexts::addressLines(const QStringList &addresses) {
    constexpr qsizetype mostAddresses = 8;
    if (addresses.isEmpty())
        return {tr("No address")};
    const bool areTooMany = addresses.size() > mostAddresses;
    const qsizetype shown = areTooMany ? mostAddresses - 1 : addresses.size();
    QStringList lines;
    for (const QString &address : addresses.first(shown))
        lines.append(linesOfAddress(address));
    if (areTooMany)
        lines.append(tr("and %1 more").arg(addresses.size() - shown));
    return lines;
}

std::optional<QString> NetworkTexts::primaryAddress(const QList<MeasuredInterface> &interfaces) {
    for (const MeasuredInterface &measured : interfaces) {
        const NetworkInterface &interface = measured.interface;
        if (!interface.isLoopback && interface.state != LinkState::Off && !interface.addresses.isEmpty())
            return interface.name + u": "_s + interface.addresses.first();
    }
    return std::nullopt;
}
