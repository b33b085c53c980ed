// SPDX-License-Identifier: GPL-3.0-or-later
#include "privatebus.h"

using namespace Qt::Literals::StringLiterals;

PrivateBus::PrivateBus() {
    daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
    if (daemon.waitForReadyRead())
        busAddress = QString::fromLatin1(daemon.readLine().trimmed());
}

void PrivateBus::end() {
    if (daemon.state() == QProcess::NotRunning)
        return;
    daemon.terminate();
    daemon.waitForFinished();
}
