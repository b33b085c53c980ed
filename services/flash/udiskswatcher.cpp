// SPDX-License-Identifier: GPL-3.0-or-later
#include "udiskswatcher.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString udisksService = u"org.freedesktop.UDisks2"_s;
const QString udisksPath = u"/org/freedesktop/UDisks2"_s;
const QString objectManager = u"org.freedesktop.DBus.ObjectManager"_s;

} // namespace

UDisksWatcher::UDisksWatcher(const QDBusConnection &systemBus, QObject *parent)
    : QObject(parent),
      bus(systemBus),
      serviceWatcher(udisksService, bus, QDBusServiceWatcher::WatchForOwnerChange) {
    qDBusRegisterMetaType<UDisksInterfaces>();
    qDBusRegisterMetaType<UDisksObjects>();
    connect(&serviceWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &UDisksWatcher::ownerChanged);
    // First the signals, then the objects: no change is missed in between.
    subscribe();
    askForObjects();
}

void UDisksWatcher::interfacesAdded(const QDBusObjectPath &path, const UDisksInterfaces &interfaces) {
    knownObjects[path].insert(interfaces);
    emit changed();
}

void UDisksWatcher::interfacesRemoved(const QDBusObjectPath &path, const QStringList &interfaces) {
    const auto object = knownObjects.find(path);
    if (object == knownObjects.end())
        return;
    for (const QString &interface : interfaces)
        object->remove(interface);
    if (object->isEmpty())
        knownObjects.erase(object);
    emit changed();
}

void UDisksWatcher::ownerChanged(const QString & /*service*/, const QString &oldOwner,
                                 const QString &newOwner) {
    if (!oldOwner.isEmpty()) {
        std::cerr << "zr-flash-service: UDisks2 has gone" << std::endl;
        knownObjects.clear();
        emit changed();
    }
    if (!newOwner.isEmpty())
        askForObjects();
}

void UDisksWatcher::subscribe() {
    bus.connect(udisksService, udisksPath, objectManager, u"InterfacesAdded"_s, this,
                SLOT(interfacesAdded(QDBusObjectPath, UDisksInterfaces)));
    bus.connect(udisksService, udisksPath, objectManager, u"InterfacesRemoved"_s, this,
                SLOT(interfacesRemoved(QDBusObjectPath, QStringList)));
}

void UDisksWatcher::askForObjects() {
    const QDBusMessage question =
        QDBusMessage::createMethodCall(udisksService, udisksPath, objectManager, u"GetManagedObjects"_s);
    auto *const call = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<UDisksObjects> reply = *call;
        if (reply.isError()) {
            std::cerr << "zr-flash-service: UDisks2 does not tell its objects: "
                      << qPrintable(reply.error().message()) << std::endl;
            return;
        }
        knownObjects = reply.value();
        emit changed();
    });
}
