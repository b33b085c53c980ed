// SPDX-License-Identifier: GPL-3.0-or-later
#include "probeplugin.h"

#include <QDBusConnection>

ProbePlugin::ProbePlugin() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.registerObject(QStringLiteral("/"), &probe, QDBusConnection::ExportAllSlots);
    bus.registerService(QStringLiteral("zr.probe"));
}
