// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "flashpartition.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>

/// Follows the objects of UDisks2, through its restarts as well.
class UDisksWatcher : public QObject {
    Q_OBJECT

public:
    explicit UDisksWatcher(const QDBusConnection &systemBus, QObject *parent = nullptr);

    /// None while UDisks2 is away.
    const UDisksObjects &objects() const { return knownObjects; }

signals:
    void changed();

private slots:
    void interfacesAdded(const QDBusMessage &message);
    void interfacesRemoved(const QDBusMessage &message);
    void ownerChanged(const QString &service, const QString &oldOwner, const QString &newOwner);

private:
    void subscribe();
    void askForObjects();

    QDBusConnection bus;
    QDBusServiceWatcher serviceWatcher;
    UDisksObjects knownObjects;
};
