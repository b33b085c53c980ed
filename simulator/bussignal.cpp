// SPDX-License-Identifier: GPL-3.0-or-later
#include "bussignal.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>

using namespace Qt::Literals::StringLiterals;

QString sendBusSignal(const QString &interface, const QString &name, const QVariantList &arguments) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return u"there is no session bus to tell it on"_s;
    QDBusMessage message = QDBusMessage::createSignal(u"/"_s, interface, name);
    message.setArguments(arguments);
    bus.send(message);
    // The answer to a call comes after the signal has left.
    bus.interface()->isServiceRegistered(interface);
    return {};
}
