// SPDX-License-Identifier: GPL-3.0-or-later
#include "sessionbus.h"

#include "silentbus.h"

#include <QCoreApplication>
#include <QPointer>
#include <QThread>

#include <chrono>
#include <iostream>
#include <utility>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto pauseBetweenAttempts = 250ms;

bool isSilent() {
    return isSilentBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
}

} // namespace

/// One attempt to connect, in a thread of its own.
class SessionBus::Attempt : public QThread {
public:
    /// Without a name it is for the connection that is the process's own.
    explicit Attempt(const QString &connectionName = QString()) : name(connectionName) {}
    ~Attempt() override { wait(); }

    /// Once it has ended: whether the bus has answered.
    bool isAnswered() const { return answered; }

    const QString name;

protected:
    void run() override {
        answered = !isSilent();
        if (!answered)
            return;
        if (name.isEmpty())
            QDBusConnection::sessionBus();
        else
            QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    }

private:
    bool answered = false;
};

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
    attempt = std::make_unique<Attempt>();
    attempt->start();
}

SessionBus::~SessionBus() = default;

QDBusConnection SessionBus::connection() {
    if (std::exchange(isFirstAttempt, false))
        endFirstAttempt();
    return current;
}

void SessionBus::endFirstAttempt() {
    attempt->wait();
    if (!attempt->isAnswered()) {
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
    if (!attempt->name.isEmpty())
        QDBusConnection::disconnectFromBus(attempt->name);
    nextAttempt.start();
}

void SessionBus::beginAttempt() {
    attempt = std::make_unique<Attempt>(u"zr-launcher-%1"_s.arg(++attemptCount));
    connect(attempt.get(), SIGNAL(finished()), this, SLOT(endAttempt()));
    attempt->start();
}

void SessionBus::endAttempt() {
    attempt->wait();
    const QDBusConnection found(attempt->name);
    if (!found.isConnected()) {
        QDBusConnection::disconnectFromBus(attempt->name);
        nextAttempt.start();
        return;
    }
    current = found;
    watch();
    // Told when it is heard again.
    emit isBack();
    std::cerr << "The D-Bus session bus is back." << std::endl;
}
