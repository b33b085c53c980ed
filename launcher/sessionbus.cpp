// SPDX-License-Identifier: GPL-3.0-or-later
#include "sessionbus.h"

#include "silentbus.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <chrono>
#include <iostream>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto pauseBetweenAttempts = 250ms;

bool isSilent() {
    return isSilentBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
}

} // namespace

SessionBus *SessionBus::instance() {
    static QPointer<SessionBus> bus;
    if (!bus)
        bus = new SessionBus(QCoreApplication::instance());
    return bus;
}

SessionBus::SessionBus(QObject *parent) : QObject(parent), current(QString()) {
    nextAttempt.setSingleShot(true);
    nextAttempt.setInterval(pauseBetweenAttempts);
    connect(&nextAttempt, SIGNAL(timeout()), this, SLOT(beginAttempt()));
    // Hands are shaken while the window is made.
    firstAttempt = std::async(std::launch::async, [] {
        const bool answers = !isSilent();
        if (answers)
            QDBusConnection::sessionBus();
        return answers;
    });
}

SessionBus::~SessionBus() {
    if (attempt)
        attempt->wait();
}

QDBusConnection SessionBus::connection() {
    if (firstAttempt.valid())
        endFirstAttempt();
    return current;
}

void SessionBus::endFirstAttempt() {
    if (!firstAttempt.get()) {
        std::cerr << "The D-Bus session bus does not answer; waiting for it." << std::endl;
        nextAttempt.start();
        return;
    }
    current = QDBusConnection::sessionBus();
    if (current.isConnected())
        watch();
}

void SessionBus::watch() {
    current.connect(QString(), u"/org/freedesktop/DBus/Local"_s, u"org.freedesktop.DBus.Local"_s,
                    u"Disconnected"_s, this, SLOT(lose()));
}

void SessionBus::lose() {
    std::cerr << "The D-Bus session bus is lost; waiting for a new one." << std::endl;
    // The process's own connection stays in Qt's hands, and never works again.
    if (!attemptedName.isEmpty())
        QDBusConnection::disconnectFromBus(attemptedName);
    nextAttempt.start();
}

void SessionBus::beginAttempt() {
    attemptedName = u"zr-launcher-%1"_s.arg(++attemptCount);
    attempt.reset(QThread::create([name = attemptedName] {
        if (!isSilent())
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    }));
    connect(attempt.get(), SIGNAL(finished()), this, SLOT(endAttempt()));
    attempt->start();
}

void SessionBus::endAttempt() {
    attempt->wait();
    const QDBusConnection found(attemptedName);
    if (!found.isConnected()) {
        QDBusConnection::disconnectFromBus(attemptedName);
        nextAttempt.start();
        return;
    }
    current = found;
    watch();
    // Told when it is heard again.
    emit isBack();
    std::cerr << "The D-Bus session bus is back." << std::endl;
}
