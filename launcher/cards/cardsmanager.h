// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QObject>
#include <QString>

class PluginsCollection;

/// Keeps the plug-in collections that exist from the start whatever cards are inserted. GUI thread only.
class CardsManager : public QObject {
    Q_OBJECT

public:
    explicit CardsManager(QObject *parent = nullptr);

    /// Creates the collections that the configuration names and hands each to the launcher window.
    void runPersistent();

private:
    PluginsCollection *makePersistentCollection(const QString &name);

    QMap<QString, PluginsCollection *> persistentCollections;
};
