// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/cardpluginscollection.h"

#include "cards/meascard.h"
#include "ui/launcherwindow.h"

CardPluginsCollection::CardPluginsCollection(const QString &name, MeasCard *measCard, bool persistent,
                                             QObject *parent)
    : PluginsCollection(name, persistent, parent), card(measCard) {}

void CardPluginsCollection::setMeasCard(MeasCard *measCard) {
    if (card != measCard)
        disconnectLeds();
    card = measCard;
    connectLeds();
}

void CardPluginsCollection::freeMeasCard() {
    card = nullptr;
}

bool CardPluginsCollection::enter() {
    return !card || card->changeMode(name());
}

void CardPluginsCollection::connectLeds() {
    if (!card) {
        PluginsCollection::connectLeds();
        return;
    }
    LauncherWindow *const window = LauncherWindow::instance();
    // A card that was bound while its page is not shown is connected already when the page is entered.
    connect(card, SIGNAL(setupLeds(QStringList)), window, SLOT(setupLeds(QStringList)), Qt::UniqueConnection);
    connect(card, SIGNAL(updateLeds(QList<QPair<QString, QString>> &)), window,
            SLOT(updateLeds(QList<QPair<QString, QString>> &)), Qt::UniqueConnection);
    card->promptRedrawLeds();
}

void CardPluginsCollection::disconnectLeds() {
    if (card)
        QObject::disconnect(card, nullptr, LauncherWindow::instance(), nullptr);
}

void CardPluginsCollection::resetLeds() {
    if (card)
        card->resetLeds();
}
