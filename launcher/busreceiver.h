// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusMessage>
#include <QList>
#include <QMutex>
#include <QObject>

#include <optional>

/// Takes signals of the session bus as fast as they come, and keeps a bounded number of them for another thread.
///
/// When too many wait, that is a flood: then only the newest of each name is kept. All functions may be called by any thread.
class BusReceiver : public QObject {
    Q_OBJECT

public:
    /// That many wait at most.
    static constexpr qsizetype mostWaiting = 100;

    /// The one that waits longest.
    std::optional<QDBusMessage> next();
    bool isEmpty() const;
    /// How many came in the flood since the last call. With none, the flood is over.
    qsizetype takeCount();
    /// The newest of each name wait to be taken, in the order in which they came.
    void releaseNewest();

public slots:
    void take(const QDBusMessage &message);

signals:
    /// One waits, and none did before.
    void filled();
    void flooded();

private:
    void keepNewest(const QDBusMessage &message);

    mutable QMutex mutex;
    QList<QDBusMessage> waiting;
    QList<QDBusMessage> newest;
    qsizetype count = 0;
    bool isFlooded = false;
};
