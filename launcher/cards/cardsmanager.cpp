// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "businbox.h"
#include "cards/cardinfo.h"
#include "cards/meascard.h"
#include "measlogid.h"
#include "plugins/cardpluginscollection.h"
#include "sessionbus.h"
#include "ui/launcherwindow.h"
#include "zrlauncherconfig.h"

#include <warningwindow.h>

#include <QDBusMessage>
#include <QDebug>

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto inserted = "inserted"_L1;
constexpr auto removed = "removed"_L1;

} // namespace

CardsManager::CardsManager(QObject *parent)
    : QObject(parent), inbox(new BusInbox(u"zr.card"_s, {{inserted, u"siss"_s}, {removed, u"si"_s}}, this)) {
    connect(inbox, SIGNAL(announced(QDBusMessage)), this, SLOT(hear(QDBusMessage)));
    connect(inbox, SIGNAL(overflowed()), this, SLOT(takeFromFiles()));
}

CardsManager::~CardsManager() {
    // Before the collections that they are bound to, which are children too and older.
    qDeleteAll(cards);
}

void CardsManager::scanAndSubscribe() {
    subscribe();
    scan();
}

void CardsManager::subscribe() {
    connect(SessionBus::instance(), SIGNAL(isBack()), this, SLOT(catchUp()), Qt::UniqueConnection);
    if (!SessionBus::instance()->connection().isConnected()) {
        std::cerr << "No connection to the D-Bus session bus.\n" << std::flush;
        return;
    }
    inbox->listen();
}

void CardsManager::hear(const QDBusMessage &message) {
    const QVariantList values = message.arguments();
    if (message.member() == inserted)
        cardInserted(values[0].toString(), values[1].toInt(), values[2].toString(), values[3].toString());
    else
        cardRemoved(values[0].toString(), values[1].toInt());
}

void CardsManager::scan() {
    runPersistent();
    const std::optional<QStringList> files = cardInfoFiles(cardInfoDirectory());
    if (!files) {
        qDebug() << "Info dir tmp/user doesn't exist";
        return;
    }
    for (const QString &file : *files)
        scanFile(file);
}

void CardsManager::scanFile(const QString &path) {
    const std::optional<QList<QByteArray>> pieces = readCardInfoFile(path);
    if (!pieces) {
        qDebug() << "Can't open file " << path;
        return;
    }
    if (const std::optional<CardInfo> card = cardInfo(*pieces))
        cardInserted(card->name, card->sn, card->cardiface, card->poller);
    else
        qDebug() << *pieces << " is not enough";
}

void CardsManager::catchUp() {
    // As at the start, first the bus: a card that comes in between is not missed.
    inbox->listen();
    takeFromFiles();
}

void CardsManager::takeFromFiles() {
    const std::optional<QStringList> files = cardInfoFiles(cardInfoDirectory());
    if (!files)
        return;
    QList<CardInfo> present;
    for (const QString &file : *files) {
        const std::optional<QList<QByteArray>> pieces = readCardInfoFile(file);
        const std::optional<CardInfo> card = pieces ? cardInfo(*pieces) : std::nullopt;
        // Unknown types would be told again each time.
        if (card && MeaslogID.contains(card->name))
            present.append(*card);
    }
    for (MeasCard *const card : QList<MeasCard *>(cards)) {
        if (!present.removeOne(card->info()))
            remove(card);
    }
    for (const CardInfo &card : std::as_const(present))
        cardInserted(card.name, card.sn, card.cardiface, card.poller);
}

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
    // The instrument's own collection outlives the manager; the window ends it.
    if (name == "zr"_L1)
        return new PluginsCollection(name, true, nullptr);
    return new CardPluginsCollection(name, nullptr, true, this);
}

void CardsManager::cardInserted(const QString &name, int sn, const QString &cardiface,
                                const QString &poller) {
    if (!MeaslogID.contains(name)) {
        refuse(name);
        return;
    }
    qDebug() << "cardInserted"
             << "name, sn, cardiface, poller ==" << name << sn << cardiface << poller;
    auto *const card = new MeasCard(name, sn, cardiface, poller, this);
    qDebug() << "new card inserted";
    cards.append(card);
    emit cardIsInserted(name, sn, cardiface, poller);
}

void CardsManager::refuse(const QString &name) {
    const QString text = tr("Sorry, card type %1 is unvalid").arg(name);
    warning()->show(text, QString());
    qDebug() << text;
}

WarningWindow *CardsManager::warning() {
    if (!warningWindow)
        warningWindow = new WarningWindow(LauncherWindow::instance());
    return warningWindow;
}

void CardsManager::cardRemoved(const QString &name, int sn) {
    const auto card = std::find_if(cards.cbegin(), cards.cend(), [&](const MeasCard *candidate) {
        return candidate->name() == name && candidate->serial() == sn;
    });
    if (card != cards.cend()) {
        remove(*card);
        return;
    }
    qDebug() << "no such card:" << name << "(" << sn << ")";
    emit cardIsRemoved(name, sn);
}

void CardsManager::remove(MeasCard *card) {
    const QString name = card->name();
    const int sn = card->serial();
    cards.removeOne(card);
    delete card;
    emit cardIsRemoved(name, sn);
}
