// SPDX-License-Identifier: GPL-3.0-or-later
#include "udiskswatcher.h"

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

void UDisksWatcher::interfacesAdded(const QDBusMessage &message) {
    if (message.signature() != "oa{sa{sv}}"_L1)
        return;
    const auto path = message.arguments().at(0).value<QDBusObjectPath>();
    knownObjects[path].insert(qdbus_cast<UDisksInterfaces>(message.arguments().at(1)));
    emit changed();
}

void UDisksWatcher::interfacesRemoved(const QDBusMessage &message) {
    if (message.signature() != "oas"_L1)
        return;
    const auto object = knownObjects.find(message.arguments().at(0).value<QDBusObjectPath>());
    if (object == knownObjects.end())
        return;
    for (const QString &interface : message.arguments().at(1).toStringList())
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
                SLOT(interfacesAdded(QDBusMessage)));
    bus.connect(udisksService, udisksPath, objectManager, u"InterfacesRemoved"_s, this,
                SLOT(interfacesRemoved(QDBusMessage)));
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
