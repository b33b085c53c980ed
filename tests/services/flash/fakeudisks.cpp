// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeudisks.h"

#include <QDBusMessage>
#include <QDBusMetaType>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString service = u"org.freedesktop.UDisks2"_s;
const QString managerPath = u"/org/freedesktop/UDisks2"_s;

} // namespace

QDBusObjectPath UDisks::drivePath(const QString &name) {
    return QDBusObjectPath(managerPath + "/drives/"_L1 + name);
}

QDBusObjectPath UDisks::blockPath(const QString &name) {
    return QDBusObjectPath(managerPath + "/block_devices/"_L1 + name);
}

UDisksInterfaces UDisks::drive(const QVariantMap &properties) {
    QVariantMap all{{u"Removable"_s, true}, {u"ConnectionBus"_s, u"usb"_s}};
    all.insert(properties);
    return {{u"org.freedesktop.UDisks2.Drive"_s, all}};
}

UDisksInterfaces UDisks::partition(const QByteArray &device, const QString &drive,
                                   const QStringList &missing) {
    UDisksInterfaces interfaces{
        {u"org.freedesktop.UDisks2.Block"_s,
         {{u"Device"_s, device + '\0'},
          {u"Drive"_s, QVariant::fromValue(drivePath(drive))},
          {u"HintSystem"_s, false}}},
        {u"org.freedesktop.UDisks2.Filesystem"_s, {}},
        {u"org.freedesktop.UDisks2.Partition"_s, {{u"Number"_s, 1U}}},
    };
    for (const QString &name : missing)
        interfaces.remove("org.freedesktop.UDisks2."_L1 + name);
    return interfaces;
}

FakeUDisks::FakeUDisks(const QString &busAddress)
    : connectionName(u"udisks %1"_s.arg(busAddress)),
      bus(QDBusConnection::connectToBus(busAddress, connectionName)) {
    qDBusRegisterMetaType<UDisksInterfaces>();
    qDBusRegisterMetaType<UDisksObjects>();
    bus.registerObject(managerPath, this, QDBusConnection::ExportAllSlots);
}

FakeUDisks::~FakeUDisks() {
    QDBusConnection::disconnectFromBus(connectionName);
}

bool FakeUDisks::appear(const UDisksObjects &objects) {
    told = objects;
    return bus.registerService(service);
}

void FakeUDisks::vanish() {
    bus.unregisterService(service);
}

void FakeUDisks::add(const QDBusObjectPath &path, const UDisksInterfaces &interfaces) {
    told[path].insert(interfaces);
    say(u"InterfacesAdded"_s, {QVariant::fromValue(path), QVariant::fromValue(interfaces)});
}

void FakeUDisks::remove(const QDBusObjectPath &path) {
    const QStringList interfaces = told.take(path).keys();
    say(u"InterfacesRemoved"_s, {QVariant::fromValue(path), interfaces});
}

void FakeUDisks::say(const QString &signal, const QVariantList &arguments) {
    QDBusMessage message =
        QDBusMessage::createSignal(managerPath, u"org.freedesktop.DBus.ObjectManager"_s, signal);
    message.setArguments(arguments);
    bus.send(message);
}
