// SPDX-License-Identifier: GPL-3.0-or-later
#include "probeplugin.h"

#include <QDBusConnection>
#include <QShortcut>

namespace {

/// A bus of the test's own stays when that of the launcher goes.
QDBusConnection probeBus() {
    const QString address = qEnvironmentVariable("PROBE_BUS");
    return address.isEmpty() ? QDBusConnection::sessionBus()
                             : QDBusConnection::connectToBus(address, QStringLiteral("probe"));
}

} // namespace

ProbePlugin::ProbePlugin() {
    connect(&probe, &Probe::windowWanted, this, &ProbePlugin::showWindow);
    QDBusConnection bus = probeBus();
    bus.registerObject(QStringLiteral("/"), &probe, QDBusConnection::ExportAllSlots);
    bus.registerService(QStringLiteral("zr.probe"));
}

QWidget *ProbePlugin::createWindow() {
    auto *const window = new QWidget;
    window->setObjectName(QStringLiteral("window with a shortcut"));
    auto *const shortcut = new QShortcut(QKeySequence(Qt::Key_F3), window);
    connect(shortcut, &QShortcut::activated, &probe, &Probe::countShortcut);
    return window;
}
