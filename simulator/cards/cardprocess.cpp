// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardprocess.h"

#include "cards/cardplace.h"
#include "cards/localport.h"
#include "cards/ptyport.h"
#include "cards/tcpport.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto babbleInterval = 20ms;
constexpr auto liveInterval = 1500ms;
constexpr qsizetype endlessLength = 2 * 1024 * 1024;

/// The reply on the wire: dots doubled at the beginning of a line, a single one at the end.
QByteArray framed(const QString &reply) {
    QByteArray bytes;
    if (!reply.isEmpty()) {
        for (const QString &line : reply.split(u'\n'))
            bytes += (line.startsWith(u'.') ? QByteArray(".") : QByteArray()) + line.toUtf8() + '\n';
    }
    return bytes + ".\n";
}

} // namespace

QString CardOrder::cardName() const {
    return u"%1-%2"_s.arg(type.name).arg(serial);
}

CardProcess::CardProcess(const CardOrder &cardOrder)
    : order(cardOrder),
      simulated(order.type, order.isDualMode),
      commandPort(makePort(order.wire, CardPlace::commandSocket(order.cardName()))),
      updatePort(makePort(order.wire, CardPlace::updateSocket(order.cardName()))),
      random(static_cast<unsigned int>(order.serial)) {
    connect(commandPort.get(), &CardPort::received, this, &CardProcess::takeBytes);
    // Who calls anew does not wait for what was asked before.
    connect(commandPort.get(), &CardPort::connected, this, [this] {
        unfinishedCommand.clear();
        keptCommands.clear();
    });
    connect(updatePort.get(), &CardPort::received, this, &CardProcess::sendUpdate);
    connect(&babbling, &QTimer::timeout, this, &CardProcess::sendNoise);
    connect(&storming, &QTimer::timeout, this, &CardProcess::changeRandomAlarm);
    connect(&living, &QTimer::timeout, this, &CardProcess::changeRandomAlarm);
    storming.setTimerType(Qt::PreciseTimer);
}

std::unique_ptr<CardPort> CardProcess::makePort(CardOrder::Wire wire, const QString &socketPath) {
    switch (wire) {
    case CardOrder::Tcp:
        return std::make_unique<TcpPort>();
    case CardOrder::Serial:
        return std::make_unique<PtyPort>(socketPath + ".tty"_L1);
    case CardOrder::Unix:
        break;
    }
    return std::make_unique<LocalPort>(socketPath);
}

QString CardProcess::insert() {
    if (!openLines())
        return u"cannot listen on %1"_s.arg(commandPort->address());
    announcement.emplace(order.type.name, order.serial, commandPort->address(), updatePort->address());
    return announcement->insert();
}

void CardProcess::remove() {
    if (announcement)
        announcement->remove();
    shutLines();
}

void CardProcess::sendUpdate() {
    if (!hangs)
        updatePort->send(simulated.update() + '\n');
}

void CardProcess::takeBytes(const QByteArray &bytes) {
    unfinishedCommand += bytes;
    while (true) {
        const qsizetype lineFeed = unfinishedCommand.indexOf('\n');
        if (lineFeed < 0)
            return;
        const QString command = QString::fromUtf8(unfinishedCommand.first(lineFeed));
        unfinishedCommand.remove(0, lineFeed + 1);
        if (hangs)
            keptCommands.append(command);
        else
            answer(command);
    }
}

void CardProcess::answer(const QString &command) {
    const QByteArray statesBefore = simulated.update();
    sendReply(framed(simulated.reply(command)));
    // A reset tells its result even when nothing was to be reset.
    if (simulated.update() != statesBefore || command == "status alarms reset"_L1)
        sendUpdate();
}

void CardProcess::sendReply(const QByteArray &reply) {
    switch (replyManner) {
    case Whole:
        commandPort->send(reply);
        break;
    case SingleBytes:
        for (const char byte : reply)
            commandPort->send(QByteArray(1, byte));
        break;
    case CutOff:
        commandPort->send(reply.first(reply.size() / 2));
        shutLines();
        openLines();
        break;
    case Endless:
        commandPort->send(QByteArray(endlessLength, 'x'));
        break;
    }
}

void CardProcess::hang() {
    hangs = true;
}

void CardProcess::resume() {
    hangs = false;
    for (const QString &command : std::exchange(keptCommands, {}))
        answer(command);
    sendUpdate();
}

void CardProcess::shutLines() {
    unfinishedCommand.clear();
    commandPort->shut();
    updatePort->shut();
}

bool CardProcess::openLines() {
    shutLines();
    return commandPort->listen() && updatePort->listen();
}

void CardProcess::babble(bool on) {
    if (on)
        babbling.start(babbleInterval);
    else
        babbling.stop();
}

void CardProcess::sendNoise() {
    QByteArray noise(512, '\0');
    for (char &byte : noise)
        byte = static_cast<char>(random());
    commandPort->send(noise);
    updatePort->send(noise);
}

void CardProcess::storm(int updatesPerSecond) {
    if (updatesPerSecond > 0)
        storming.start(1000ms / updatesPerSecond);
    else
        storming.stop();
}

void CardProcess::live(bool on) {
    if (on)
        living.start(liveInterval);
    else
        living.stop();
}

void CardProcess::changeRandomAlarm() {
    const QStringList names = simulated.alarmNames();
    const QString &name = names.at(static_cast<qsizetype>(random()) % names.size());
    simulated.setAlarm(name, simulated.alarmState(name) != SimulatedCard::Present);
    sendUpdate();
}
