// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandchannel.h"

#include "controllerlog.h"

#include <QIODevice>
#include <QRandomGenerator>
#include <QScopedValueRollback>

using namespace Qt::Literals::StringLiterals;

namespace {

// More than any reply: who sends this much without being asked is not talking to us.
constexpr qint64 mostUnaskedBytes = 1024 * 1024;

} // namespace

CommandChannel::CommandChannel(const QString &address, QObject *parent)
    : QObject(parent), addressText(address) {
    const std::optional<CardAddress> place = cardAddress(address);
    if (!place)
        return;
    line = CardLine::make(*place);
    connect(line->device(), &QIODevice::readyRead, this, [this] {
        // While a command waits, what arrives is its reply.
        if (!isWaiting)
            takeUnasked();
    });
}

CommandChannel::Outcome CommandChannel::send(const QString &command) {
    if (!line)
        return {Outcome::Failed, tr("\"%1\" is not the address of a card.").arg(addressText)};
    // A second line would be a second command, with a reply that nobody waits for.
    if (command.isEmpty() || command.contains(u'\n') || command.contains(u'\r'))
        return {Outcome::Failed, tr("A command is one line.")};
    const QScopedValueRollback waiting(isWaiting, true);
    takeWaiting();
    if (isLeftAlone())
        return {Outcome::LeftAlone, tr("The card does not answer.")};

    const QDeadlineTimer deadline(timeLimit);
    if (!open(deadline)) {
        if (deadline.hasExpired())
            leftAloneUntil = QDeadlineTimer(leaveAloneTime);
        return fail(tr("The card cannot be reached: %1.").arg(line->errorString()));
    }
    if (mustRepeatNumber && !repeatNumber(deadline))
        return missReply(ReplyReader());
    if (!write(command, deadline))
        return fail(tr("The card closed the line."));
    return awaitReply(deadline);
}

bool CommandChannel::isLeftAlone() {
    if (!leftAloneUntil.hasExpired())
        return true;
    if (owedReply)
        close();
    return false;
}

bool CommandChannel::open(QDeadlineTimer deadline) {
    return line->isOpen() || line->open(deadline);
}

bool CommandChannel::repeatNumber(QDeadlineTimer deadline) {
    // One that no reply to anything else is.
    const QString number = QString::number(QRandomGenerator::global()->generate64());
    if (!write("repeat "_L1 + number, deadline))
        return false;
    while (true) {
        const Outcome outcome = awaitReply(deadline);
        if (outcome.kind != Outcome::Answered)
            return false;
        if (outcome.text == number)
            break;
    }
    mustRepeatNumber = false;
    return true;
}

bool CommandChannel::write(const QString &command, QDeadlineTimer deadline) {
    const QByteArray bytes = command.toUtf8() + '\n';
    QIODevice *const device = line->device();
    if (device->write(bytes) != bytes.size())
        return false;
    while (line->isOpen() && device->bytesToWrite() > 0) {
        if (!device->waitForBytesWritten(static_cast<int>(deadline.remainingTime())))
            break;
    }
    return line->isOpen();
}

CommandChannel::Outcome CommandChannel::awaitReply(QDeadlineTimer deadline) {
    ReplyReader reader;
    QIODevice *const device = line->device();
    bool isLastLook = false;
    while (true) {
        const QByteArray waiting = device->peek(device->bytesAvailable());
        device->skip(reader.feed(waiting));
        if (reader.state() == ReplyReader::Complete)
            return {Outcome::Answered, reader.reply()};
        if (reader.state() == ReplyReader::TooLong)
            return fail(tr("The card's reply has no end."));
        if (!line->isOpen() && waiting.isEmpty())
            return fail(tr("The card closed the line."));
        if (isLastLook)
            return missReply(reader);
        // Once the time is over, what has come by then is still looked at.
        isLastLook = deadline.hasExpired();
        device->waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
}

CommandChannel::Outcome CommandChannel::missReply(const ReplyReader &begun) {
    owedReply = std::make_unique<ReplyReader>(begun);
    leftAloneUntil = QDeadlineTimer(leaveAloneTime);
    return {Outcome::Failed, tr("The card did not answer in time.")};
}

CommandChannel::Outcome CommandChannel::fail(const QString &reason) {
    close();
    return {Outcome::Failed, reason};
}

void CommandChannel::close() {
    owedReply.reset();
    unaskedBytes = 0;
    if (!line)
        return;
    mustRepeatNumber |= line->outlivesClosing();
    line->close();
}

/// What came before the command, and the event loop has not come round to.
void CommandChannel::takeWaiting() {
    if (!line->isOpen())
        return;
    line->device()->waitForReadyRead(0);
    takeUnasked();
}

void CommandChannel::takeUnasked() {
    if (!line->isOpen())
        return;
    QByteArray bytes = line->device()->readAll();
    if (owedReply) {
        bytes.remove(0, owedReply->feed(bytes));
        if (owedReply->state() == ReplyReader::Complete) {
            qCDebug(controllerLog) << addressText << "answered late; the reply is dropped";
            owedReply.reset();
            leftAloneUntil = QDeadlineTimer(0);
        }
    }
    if (bytes.isEmpty())
        return;
    if (unaskedBytes == 0)
        qCWarning(controllerLog).noquote() << addressText << "sends what nobody asked for; it is dropped";
    unaskedBytes += bytes.size();
    if (unaskedBytes > mostUnaskedBytes)
        close();
}
