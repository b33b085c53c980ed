// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardcontrol.h"

#include "cards/cardplace.h"
#include "cards/cardprocess.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalSocket>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longestWaitMs = 5000;

const QString done;
const QString notUnderstood = u"error that is no order for a card"_s;

std::optional<CardProcess::ReplyManner> replyManner(const QString &name) {
    if (name == "whole"_L1)
        return CardProcess::Whole;
    if (name == "bytes"_L1)
        return CardProcess::SingleBytes;
    if (name == "cut"_L1)
        return CardProcess::CutOff;
    if (name == "endless"_L1)
        return CardProcess::Endless;
    return std::nullopt;
}

} // namespace

CardControl::CardControl(CardProcess *process, const QString &socketPath)
    : cardProcess(process), path(socketPath) {
    server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server, &QLocalServer::newConnection, this, &CardControl::answer);
}

bool CardControl::listen() {
    QLocalServer::removeServer(path);
    return server.listen(path);
}

std::optional<QString> CardControl::order(const QString &card, const QStringList &words) {
    QLocalSocket socket;
    socket.connectToServer(CardPlace::controlSocket(card));
    if (!socket.waitForConnected(longestWaitMs))
        return std::nullopt;
    socket.write(words.join(u' ').toUtf8() + '\n');
    QByteArray answer;
    while (socket.waitForReadyRead(longestWaitMs))
        answer += socket.readAll();
    if (socket.state() == QLocalSocket::ConnectedState)
        return u"error the card's process does not answer"_s;
    return QString::fromUtf8(answer + socket.readAll());
}

void CardControl::answer() {
    QLocalSocket *const shell = server.nextPendingConnection();
    connect(shell, &QLocalSocket::disconnected, shell, &QObject::deleteLater);
    connect(shell, &QLocalSocket::readyRead, this, [this, shell] {
        if (!shell->canReadLine())
            return;
        const QString line = QString::fromUtf8(shell->readLine()).trimmed();
        shell->write(carryOut(line.split(u' ')).toUtf8());
        shell->disconnectFromServer();
    });
}

QString CardControl::carryOut(const QStringList &words) {
    const QString verb = words.value(0);
    const QString object = words.value(1);
    if (verb == "remove"_L1) {
        // Everything is gone before the shell is answered: it may insert the same card again at once.
        cardProcess->remove();
        server.close();
        QCoreApplication::quit();
    } else if (verb == "alarm"_L1) {
        return setAlarm(object, words.value(2));
    } else if (verb == "clear"_L1) {
        cardProcess->card().resetAlarms();
        cardProcess->sendUpdate();
    } else if (verb == "mode"_L1) {
        return setMode(object);
    } else if (verb == "hang"_L1) {
        cardProcess->hang();
    } else if (verb == "resume"_L1) {
        cardProcess->resume();
    } else if (verb == "close"_L1) {
        cardProcess->shutLines();
    } else if (verb == "open"_L1) {
        return cardProcess->openLines() ? done : u"error cannot listen"_s;
    } else if (verb == "babble"_L1 || verb == "live"_L1) {
        if (!object.isEmpty() && object != "off"_L1)
            return notUnderstood;
        const bool on = object.isEmpty();
        verb == "babble"_L1 ? cardProcess->babble(on) : cardProcess->live(on);
    } else if (verb == "storm"_L1) {
        bool isNumber = false;
        const int updatesPerSecond = object.toInt(&isNumber);
        if (!isNumber || updatesPerSecond < 0 || updatesPerSecond > 1000)
            return notUnderstood;
        cardProcess->storm(updatesPerSecond);
    } else if (const std::optional<CardProcess::ReplyManner> manner = replyManner(object);
               verb == "reply"_L1 && manner) {
        cardProcess->setReplyManner(*manner);
    } else if (verb == "commands"_L1) {
        return cardProcess->card().commands().join(u'\n');
    } else {
        return notUnderstood;
    }
    return done;
}

QString CardControl::setAlarm(const QString &name, const QString &state) {
    if (state != "present"_L1 && state != "none"_L1)
        return notUnderstood;
    if (!cardProcess->card().setAlarm(name, state == "present"_L1))
        return u"error the card has no alarm %1 in this mode"_s.arg(name);
    cardProcess->sendUpdate();
    return done;
}

QString CardControl::setMode(const QString &mode) {
    if (mode != "pcm"_L1 && mode != "sa"_L1)
        return notUnderstood;
    if (!cardProcess->card().setMode(mode == "pcm"_L1 ? SimulatedCard::Pcm : SimulatedCard::Signalling))
        return u"error the card has one mode only"_s;
    cardProcess->sendUpdate();
    return done;
}
