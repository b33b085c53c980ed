// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

/// Sends signals on the session bus from a connection of its own, as another program does.
///
/// Without a program: the thread sanitizer does not bear that a test starts one with QProcess. One at a time.
class BusSender {
public:
    BusSender()
        : connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("sender"))) {}
    ~BusSender() { QDBusConnection::disconnectFromBus(connection.name()); }
    BusSender(const BusSender &) = delete;
    BusSender &operator=(const BusSender &) = delete;

    /// The bus keeps the order. False when it cannot be sent.
    bool send(const QString &path, const QString &interface, const QString &name,
              const QVariantList &arguments) const {
        QDBusMessage message = QDBusMessage::createSignal(path, interface, name);
        message.setArguments(arguments);
        return connection.send(message);
    }

private:
    QDBusConnection connection;
};
