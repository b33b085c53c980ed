// SPDX-License-Identifier: GPL-3.0-or-later
#include "networkreader.h"

#include "interfaceaddresses.h"

NetworkReader::NetworkReader(const QString &directory) : netDirectory(directory) {
    clock.start();
}

QList<MeasuredInterface> NetworkReader::read() {
    QList<NetworkInterface> interfaces = interfacesIn(netDirectory);
    const std::chrono::milliseconds now(clock.elapsed());
    const QHash<QString, QStringList> addresses = interfaceAddresses();
    QList<MeasuredInterface> measured;
    for (NetworkInterface &interface : interfaces) {
        interface.addresses = addresses.value(interface.name);
        measured.append({interface, meter.rate(interface, now)});
    }
    meter.keepOnly(interfaces);
    return measured;
}
