// SPDX-License-Identifier: GPL-3.0-or-later
#include "networktexts.h"

#include <amounts.h>

using namespace Qt::Literals::StringLiterals;

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
    const QString state = stateText(interface.state);
    if (interface.state != LinkState::Up || !interface.speedMbits)
        return state;
    constexpr quint64 mega = 1'000'000;
    return tr("%1, %2").arg(state, Amounts::bitRate(static_cast<quint64>(*interface.speedMbits) * mega));
}

QString NetworkTexts::rateText(const std::optional<quint64> &bitsPerSecond) {
    return bitsPerSecond ? Amounts::bitRate(*bitsPerSecond) : u"\u2013"_s;
}

QStringList NetworkTexts::addressLines(const QStringList &addresses) {
    constexpr qsizetype mostLines = 8;
    if (addresses.size() <= mostLines)
        return addresses.isEmpty() ? QStringList(tr("No address")) : addresses;
    const qsizetype shown = mostLines - 1;
    return addresses.first(shown) << tr("and %1 more").arg(addresses.size() - shown);
}

std::optional<QString> NetworkTexts::primaryAddress(const QList<MeasuredInterface> &interfaces) {
    for (const MeasuredInterface &measured : interfaces) {
        const NetworkInterface &interface = measured.interface;
        if (!interface.isLoopback && interface.state != LinkState::Off && !interface.addresses.isEmpty())
            return interface.name + u": "_s + interface.addresses.first();
    }
    return std::nullopt;
}
