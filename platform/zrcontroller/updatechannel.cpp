// SPDX-License-Identifier: GPL-3.0-or-later
#include "updatechannel.h"

#include "controllerlog.h"

#include <QIODevice>

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds firstReopenDelay = 500ms;
constexpr std::chrono::milliseconds lastReopenDelay = 8s;
constexpr auto damageToldInterval = 10s;

} // namespace

UpdateChannel::UpdateChannel(const QString &address, QObject *parent)
    : QObject(parent), addressText(address), reopenDelay(firstReopenDelay) {
    const std::optional<CardAddress> place = cardAddress(address);
    if (!place) {
        if (!address.isEmpty())
            qCWarning(controllerLog) << address << "is not the address of a card's updates";
        return;
    }
    line = CardLine::make(*place);
    reopening.setSingleShot(true);
    connect(&reopening, &QTimer::timeout, this, &UpdateChannel::open);
    // A card on a serial line cannot see that somebody listens now; an empty line asks for the states.
    connect(line.get(), &CardLine::opened, this, &UpdateChannel::request);
    connect(line.get(), &CardLine::closed, this, &UpdateChannel::reopenLater);
    connect(line->device(), &QIODevice::readyRead, this, &UpdateChannel::read);
}

UpdateChannel::~UpdateChannel() {
    // The line closes while we end; nothing is to be opened again then.
    if (line)
        line->disconnect(this);
}

void UpdateChannel::open() {
    if (line && !line->isOpen())
        line->beginOpening();
}

void UpdateChannel::request() {
    if (line && line->isOpen())
        line->device()->write("\n");
}

void UpdateChannel::read() {
    const UpdateReader::Batch batch = reader.feed(line->device()->readAll());
    if (batch.damagedLines)
        tellDamage(batch.damagedLines);
    if (batch.updates.isEmpty())
        return;
    reopenDelay = firstReopenDelay;
    updatesSeen += static_cast<quint64>(batch.updates.size());
    for (const CardUpdate &update : batch.updates) {
        for (auto stream = update.cbegin(); stream != update.cend(); ++stream)
            emit received(stream.key(), stream.value());
    }
}

void UpdateChannel::tellDamage(int lines) {
    if (!damageToldUntil.hasExpired())
        return;
    damageToldUntil = QDeadlineTimer(damageToldInterval);
    qCWarning(controllerLog).noquote() << addressText << "sends what is no update; lines dropped:" << lines;
}

void UpdateChannel::reopenLater() {
    reader = UpdateReader();
    reopening.start(reopenDelay);
    reopenDelay = qMin(2 * reopenDelay, lastReopenDelay);
    emit lost();
}

void UpdateChannel::takeWaiting() {
    if (line && line->isOpen())
        line->device()->waitForReadyRead(0);
}

bool UpdateChannel::waitForUpdate(QDeadlineTimer deadline) {
    const quint64 seenBefore = updatesSeen;
    // Once the time is over, what has come by then is still looked at.
    for (bool isLastLook = false; line && line->isOpen() && updatesSeen == seenBefore && !isLastLook;) {
        isLastLook = deadline.hasExpired();
        line->device()->waitForReadyRead(static_cast<int>(deadline.remainingTime()));
    }
    return updatesSeen != seenBefore;
}
