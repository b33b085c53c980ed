// SPDX-License-Identifier: GPL-3.0-or-later
#include "businbox.h"

#include "busreceiver.h"
#include "sessionbus.h"

#include <chrono>
#include <iostream>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

BusInbox::BusInbox(QString interface, QMap<QString, QString> signatures, QObject *parent)
    : QObject(parent),
      interfaceName(std::move(interface)),
      signatureByName(std::move(signatures)),
      receiver(std::make_unique<BusReceiver>()) {
    // Without an interval: after whatever else waits for the screen's thread.
    turn.setSingleShot(true);
    floodsEnd.setInterval(1s);
    connect(receiver.get(), SIGNAL(filled()), &turn, SLOT(start()));
    connect(receiver.get(), SIGNAL(flooded()), this, SLOT(beginFlood()));
    connect(&turn, SIGNAL(timeout()), this, SLOT(deliver()));
    connect(&floodsEnd, SIGNAL(timeout()), this, SLOT(lookAtFlood()));
    receiver->moveToThread(&thread);
    thread.start();
}

BusInbox::~BusInbox() {
    thread.quit();
    thread.wait();
}

void BusInbox::listen() {
    QDBusConnection bus = SessionBus::instance()->connection();
    for (const auto &[name, signature] : signatureByName.asKeyValueRange())
        bus.connect(QString(), u"/"_s, interfaceName, name, QStringList(), signature, receiver.get(),
                    SLOT(take(QDBusMessage)));
}

void BusInbox::deliver() {
    const std::optional<QDBusMessage> message = receiver->next();
    if (!message)
        return;
    // First the next one's turn: what is told may be waited for in an event loop of its own, a question to the user for one.
    if (!receiver->isEmpty())
        turn.start();
    emit announced(*message);
}

void BusInbox::beginFlood() {
    std::cerr << "Too many signals of " << qPrintable(interfaceName)
              << " on the D-Bus session bus; only their outcome is looked at." << std::endl;
    floodsEnd.start();
}

void BusInbox::lookAtFlood() {
    if (const qsizetype count = receiver->takeCount()) {
        floodsSize += count;
        emit overflowed();
        return;
    }
    floodsEnd.stop();
    std::cerr << "The flood of " << qPrintable(interfaceName) << " is over after "
              << std::exchange(floodsSize, 0) << " signals." << std::endl;
}

void BusInbox::tellNewest() {
    receiver->releaseNewest();
}
