// SPDX-License-Identifier: GPL-3.0-or-later
#include "privatebus.h"

#include <csignal>

using namespace Qt::Literals::StringLiterals;

PrivateBus::PrivateBus(const QString &socket) {
    start(socket.isEmpty() ? QString() : "unix:path="_L1 + socket);
}

void PrivateBus::end() {
    if (daemon.state() == QProcess::NotRunning)
        return;
    daemon.terminate();
    daemon.waitForFinished();
}

void PrivateBus::kill() {
    daemon.kill();
    daemon.waitForFinished();
}

void PrivateBus::suspend() {
    ::kill(static_cast<pid_t>(daemon.processId()), SIGSTOP);
}

void PrivateBus::resume() {
    ::kill(static_cast<pid_t>(daemon.processId()), SIGCONT);
}

bool PrivateBus::restart() {
    // Without the identity of the bus that was there.
    return start(busAddress.section(u',', 0, 0));
}

bool PrivateBus::start(const QString &address) {
    QStringList words{u"--session"_s, u"--nofork"_s, u"--print-address"_s};
    if (!address.isEmpty())
        words.append("--address="_L1 + address);
    daemon.start(u"dbus-daemon"_s, words);
    if (!daemon.waitForReadyRead())
        return false;
    // The identity changes with each start.
    const QString printed = QString::fromLatin1(daemon.readLine().trimmed());
    busAddress = address.isEmpty() ? printed : address;
    return true;
}
