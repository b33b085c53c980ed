// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class BusInbox;
class MeasCard;
class PluginsCollection;
class QDBusMessage;
class WarningWindow;

/// Follows the measurement cards, as the card service tells them on the session bus (docs/protocols.md, "Card service"), and
/// keeps the plug-in collections that exist from the start whatever cards are inserted. GUI thread only.
class CardsManager : public QObject {
    Q_OBJECT

public:
    explicit CardsManager(QObject *parent = nullptr);
    ~CardsManager() override;

    /// First the bus, then what is there already: a card that comes in between is not missed.
    void scanAndSubscribe();
    void subscribe();
    void scan();
    /// Creates the collections that the configuration names and hands each to the launcher window.
    void runPersistent();

    /// The collection of that name that runPersistent() created; null when there is none.
    PluginsCollection *persistentCollection(const QString &name) const {
        return persistentCollections.value(name);
    }

    /// The window for unknown types, and for what a card that is gone left unread.
    WarningWindow *warning();

signals:
    /// A card was created.
    void cardIsInserted(QString name, int sn, QString cardiface, QString poller);
    /// A removal was announced, whether there was such a card or not.
    void cardIsRemoved(QString name, int sn);

protected slots:
    void cardInserted(const QString &name, int sn, const QString &cardiface, const QString &poller);
    void cardRemoved(const QString &name, int sn);

private slots:
    void hear(const QDBusMessage &message);
    /// After a time without a bus: takes what came and went from the info files.
    void catchUp();
    /// The same after a flood of announcements.
    void takeFromFiles();

private:
    PluginsCollection *makePersistentCollection(const QString &name);
    void scanFile(const QString &path);
    void refuse(const QString &name);
    void remove(MeasCard *card);

    BusInbox *inbox;
    QMap<QString, PluginsCollection *> persistentCollections;
    /// In order of arrival.
    QList<MeasCard *> cards;
    WarningWindow *warningWindow = nullptr;
};
