// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/meascard.h"

#include "cards/cardinfo.h"
#include "cards/cardreplies.h"
#include "cards/cardsmanager.h"
#include "plugins/cardpluginscollection.h"
#include "ui/launcherwindow.h"

#include <cardcontroller.h>
#include <controllercommand.h>
#include <dataproxy.h>
#include <warningwindow.h>

#include <QElapsedTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto restAfterFailure = 15s;
constexpr qint64 quickReadingMs = 100;
constexpr int restFactor = 10;

} // namespace

MeasCard::MeasCard(const QString &name, int serial, const QString &iface, const QString &updates,
                   CardsManager *manager)
    : QObject(manager),
      cardsManager(manager),
      cardName(name),
      sn(serial),
      cardiface(iface),
      poller(updates),
      currentMode(name) {
    controller.reset(CardController::newCard(name, QString::number(sn), cardiface, poller));
    if (!controller)
        qBadAlloc();
    readIdentification();
    indicators = controller->dataProxy(u"indicators"_s, nullptr);
    if (!indicators)
        qBadAlloc();
    connect(indicators, SIGNAL(updated(QVariantMap &, QString)), this, SLOT(redrawLeds(QVariantMap &)));
    connect(controller.get(), SIGNAL(showErrorMessage(QString, QString)), warning(),
            SLOT(show(QString, QString)));
    initPlugins();
}

MeasCard::~MeasCard() {
    LauncherWindow::instance()->rmCardPage(this);
    const bool onePersists = freeCollections();
    // A page that stays must not go on showing alarms of a card that is gone.
    if (onePersists) {
        disconnect(LauncherWindow::instance());
        LauncherWindow::instance()->showCurrentLeds();
    }
    if (onePersists || controller->outlivesCards()) {
        // Plug-ins of a collection that stays may hold the controller: it is kept for the next card of this type.
        controller->freeCard();
        static_cast<void>(controller.release());
    }
    if (warningWindow)
        warningWindow->handOverTo(cardsManager->warning());
}

/// Returns whether one of the collections stays.
bool MeasCard::freeCollections() {
    bool onePersists = false;
    for (CardPluginsCollection *const collection : std::as_const(cardCollections)) {
        if (collection->persistent()) {
            // Another card of this type may have been bound since.
            if (collection->measCard() == this)
                collection->freeMeasCard();
            onePersists = true;
        } else {
            delete collection;
        }
    }
    cardCollections.clear();
    return onePersists;
}

CardInfo MeasCard::info() const {
    return {cardName, sn, cardiface, poller};
}

QString MeasCard::uniqueName() const {
    return u"%1-%2"_s.arg(cardName, QString::number(sn));
}

void MeasCard::readIdentification() {
    options = controller->doCommand(u"options"_s);
    hardwareRevision = controller->doCommand(u"hwrevision"_s);
    versions = controller->doCommand(u"versions"_s);
    isDualMode = replyLines(options).contains("ZR-SIG1"_L1);
}

void MeasCard::initPlugins() {
    if (!isDualMode) {
        initPlugins(cardName);
    } else if (controller->doCommand(u"operation"_s).contains("sa"_L1)) {
        initPlugins(cardName);
        initPlugins(u"sa"_s);
        currentMode = u"sa"_s;
    } else {
        initPlugins(u"sa"_s);
        initPlugins(cardName);
        currentMode = u"e1"_s;
    }
    controller->doCommand(u"parameters"_s);
}

void MeasCard::initPlugins(const QString &type) {
    auto *collection = qobject_cast<CardPluginsCollection *>(cardsManager->persistentCollection(type));
    if (collection) {
        collection->setMeasCard(this);
    } else {
        collection = new CardPluginsCollection(type, this, false, nullptr);
        LauncherWindow::instance()->newCollectionPage(collection);
    }
    cardCollections.append(collection);
}

void MeasCard::deinitPlugins() {
    qDeleteAll(cardCollections);
    cardCollections.clear();
}

bool MeasCard::changeMode(const QString &mode) {
    if (!isDualMode || mode == currentMode)
        return true;
    ControllerCommand command(mode == "e1"_L1 ? u"operation pcm"_s : u"operation sa"_s, false);
    if (controller->doCommand(command) <= 0)
        return false;
    controller->doCommand(u"parameters"_s);
    currentMode = mode;
    return true;
}

void MeasCard::resetLeds() {
    controller->doCommandGetUpdate(u"status alarms reset"_s);
}

QStringList MeasCard::readLedsNames() {
    ControllerCommand command(u"status alarms"_s, false);
    namesAreKnown = controller->doCommand(command) >= 0;
    return ledNamesIn(command.reply());
}

QList<QPair<QString, QString>> MeasCard::ledsStates(const QVariantMap &data) const {
    return ledStatesOf(data);
}

void MeasCard::promptRedrawLeds() {
    emit setupLeds(readLedsNames());
    QVariantMap data = indicators->data();
    redrawLeds(data);
}

void MeasCard::redrawLeds(QVariantMap &data) {
    const QStringList keys = data.keys();
    if (keys != ledKeys && nextSetup.hasExpired()) {
        ledKeys = keys;
        setUpLeds();
    }
    QList<QPair<QString, QString>> states = ledsStates(data);
    emit updateLeds(states);
}

/// Asking for the names stops the window as long as the card takes. A card that is slow, or silent, is given a rest before the
/// next update with other keys asks it again.
void MeasCard::setUpLeds() {
    QElapsedTimer reading;
    reading.start();
    emit setupLeds(readLedsNames());
    if (!namesAreKnown) {
        ledKeys.clear();
        nextSetup = QDeadlineTimer(restAfterFailure);
    } else if (reading.elapsed() > quickReadingMs) {
        nextSetup = QDeadlineTimer(restFactor * reading.elapsed());
    }
}

WarningWindow *MeasCard::warning() {
    if (!warningWindow)
        warningWindow = new WarningWindow(LauncherWindow::instance());
    return warningWindow;
}
