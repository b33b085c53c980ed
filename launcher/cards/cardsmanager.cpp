// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "plugins/pluginscollection.h"
#include "ui/launcherwindow.h"
#include "zrlauncherconfig.h"

#include <QDebug>

using namespace Qt::Literals::StringLiterals;

CardsManager::CardsManager(QObject *parent) : QObject(parent) {}

void CardsManager::runPersistent() {
    const QStringList names = ZrLauncherConfig(u"plugins"_s)[u"persistent"_s].string().split(u' ');
    if (names.isEmpty()) {
        qDebug() << "no plugins can be loaded because no proper settings in configuration file.";
        return;
    }
    for (const QString &name : names) {
        PluginsCollection *const collection = makePersistentCollection(name);
        persistentCollections.insert(name, collection);
        LauncherWindow::instance()->newCollectionPage(collection);
    }
}

PluginsCollection *CardsManager::makePersistentCollection(const QString &name) {
    // The instrument's own collection outlives the manager: it belongs to nobody.
    const bool isInstrumentsOwn = name == "zr"_L1;
    return new PluginsCollection(name, true, isInstrumentsOwn ? nullptr : this);
}
