// SPDX-License-Identifier: GPL-3.0-or-later
#include "servicenotifier.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <chrono>
#include <systemd/sd-daemon.h>

namespace {

constexpr int leaveEnvironment = 0;

void tell(const char *state) {
    ::sd_notify(leaveEnvironment, state);
}

} // namespace

ServiceNotifier::ServiceNotifier(QWidget *window, QObject *parent) : QObject(parent) {
    if (!qEnvironmentVariableIsSet("NOTIFY_SOCKET"))
        return;
    firstFrame.setSingleShot(true);
    connect(&firstFrame, SIGNAL(timeout()), this, SLOT(tellReady()));
    connect(&watchdog, SIGNAL(timeout()), this, SLOT(tellAlive()));
    connect(QCoreApplication::instance(), SIGNAL(aboutToQuit()), this, SLOT(tellStopping()));
    window->installEventFilter(this);
}

bool ServiceNotifier::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Paint) {
        watched->removeEventFilter(this);
        // The platform brings what was painted to the screen by an event that it posts after the painting. A timer,
        // unlike a posted call, comes after all events that are waiting.
        firstFrame.start(0);
    }
    return false;
}

void ServiceNotifier::tellReady() {
    tell("READY=1");
    std::uint64_t limitUs = 0;
    if (::sd_watchdog_enabled(leaveEnvironment, &limitUs) > 0)
        watchdog.start(std::chrono::ceil<std::chrono::milliseconds>(std::chrono::microseconds(limitUs / 2)));
}

void ServiceNotifier::tellAlive() {
    tell("WATCHDOG=1");
}

void ServiceNotifier::tellStopping() {
    tell("STOPPING=1");
}
