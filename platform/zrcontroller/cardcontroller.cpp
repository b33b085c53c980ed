// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcontroller.h"

#include "commandchannel.h"
#include "controllercommand.h"
#include "controllerlog.h"
#include "dataproxy.h"
#include "updatechannel.h"

#include <algorithm>
#include <new>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto errorInterval = 10s;
constexpr auto longestWaitForUpdate = 500ms;

enum Result { NoReply = -1, Refused = 0, Obeyed = 1 };

/// Every controller there is, in the order in which they got their cards. The list is never destroyed: those that were
/// let go of stay until the process ends.
QList<CardController *> &controllers = *new QList<CardController *>;

bool isRefusal(const QString &reply) {
    return reply == "error"_L1 || reply.startsWith("error "_L1) || reply.startsWith("error\n"_L1);
}

} // namespace

CardController *CardController::newCard(const QString &name, const QString &sn, const QString &cardiface,
                                        const QString &poller) {
    CardController *controller = freedController(name, sn);
    if (!controller)
        controller = new (std::nothrow) CardController;
    if (controller)
        controller->takeCard(name, sn, cardiface, poller);
    return controller;
}

CardController *CardController::freedController(const QString &name, const QString &sn) {
    CardController *freed = nullptr;
    for (CardController *const controller : std::as_const(controllers)) {
        if (controller->commands || controller->cardName != name)
            continue;
        if (controller->cardSerial == sn)
            return controller;
        if (!freed)
            freed = controller;
    }
    return freed;
}

CardController *CardController::card(const QString &name, const QString &sn) {
    for (CardController *const controller : cards(name)) {
        if (controller->cardSerial == sn)
            return controller;
    }
    return nullptr;
}

QList<CardController *> CardController::cards(const QString &name) {
    QList<CardController *> inserted;
    std::copy_if(controllers.cbegin(), controllers.cend(), std::back_inserter(inserted),
                 [&name](const CardController *controller) {
                     return controller->commands && controller->cardName == name;
                 });
    return inserted;
}

CardController::~CardController() {
    controllers.removeOne(this);
}

void CardController::takeCard(const QString &name, const QString &sn, const QString &cardiface,
                              const QString &poller) {
    cardName = name;
    cardSerial = sn;
    lastError.clear();
    commands = std::make_unique<CommandChannel>(cardiface);
    updates = std::make_unique<UpdateChannel>(poller);
    connect(updates.get(), &UpdateChannel::received, this,
            [this](const QString &stream, const QVariantMap &data) {
                for (DataProxy *const proxy : proxies()) {
                    if (proxy->name() == stream)
                        proxy->take(data);
                }
            });
    connect(updates.get(), &UpdateChannel::lost, this, [this] {
        for (DataProxy *const proxy : proxies())
            proxy->doubt();
    });
    if (!proxies().isEmpty())
        updates->open();
    controllers.removeOne(this);
    controllers.append(this);
}

QList<DataProxy *> CardController::proxies() const {
    return findChildren<DataProxy *>(Qt::FindDirectChildrenOnly);
}

QString CardController::doCommand(const QString &command) {
    ControllerCommand loud(command, false);
    execute(loud);
    if (command == "options"_L1 && commands)
        commands->setTimeLimit(statedTimeLimit(loud.reply()));
    return loud.reply();
}

int CardController::doCommand(ControllerCommand &command) {
    return execute(command);
}

int CardController::execute(ControllerCommand &command) {
    command.setReply(QString());
    if (!commands)
        return NoReply;
    const CommandChannel::Outcome outcome = commands->send(command.text());
    if (outcome.kind == CommandChannel::Outcome::Answered) {
        command.setReply(outcome.text);
        return isRefusal(outcome.text) ? Refused : Obeyed;
    }
    if (outcome.kind == CommandChannel::Outcome::Failed && !command.isQuiet())
        tellError(outcome.text, command.text());
    return NoReply;
}

int CardController::doCommandGetUpdate(const QString &command) {
    if (!updates)
        return NoReply;
    // What the card has told so far is not the update that the command causes.
    updates->takeWaiting();
    ControllerCommand loud(command, false);
    const int result = execute(loud);
    if (result != Obeyed)
        return result;
    return updates->waitForUpdate(QDeadlineTimer(longestWaitForUpdate)) ? Obeyed : Refused;
}

void CardController::tellError(const QString &text, const QString &command) {
    const auto now = std::chrono::steady_clock::now();
    if (text == lastError && now - lastErrorTime < errorInterval)
        return;
    lastError = text;
    lastErrorTime = now;
    qCWarning(controllerLog).noquote() << cardName << cardSerial << command << ':' << text;
    const QString detail = tr("Card %1, number %2, command \"%3\"").arg(cardName, cardSerial, command);
    // Later, from the event loop: whoever opens the card connects to the signal only afterwards.
    QMetaObject::invokeMethod(
        this, [this, text, detail] { emit showErrorMessage(text, detail); }, Qt::QueuedConnection);
}

DataProxy *CardController::dataProxy(const QString &name, MeasProcessor *processor) {
    for (DataProxy *const proxy : proxies()) {
        if (proxy->name() == name && proxy->processor == processor)
            return proxy;
    }
    auto *const proxy = new (std::nothrow) DataProxy(name, processor, this);
    if (proxy && updates) {
        // What was told before there was a proxy for it is told again.
        updates->request();
        updates->open();
    }
    return proxy;
}

void CardController::freeCard() {
    wasFreed = true;
    commands.reset();
    updates.reset();
    disconnect(this, SIGNAL(showErrorMessage(QString, QString)), nullptr, nullptr);
    for (DataProxy *const proxy : proxies())
        proxy->forget();
}
