// SPDX-License-Identifier: GPL-3.0-or-later
#include "terminationsignals.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array stopSignals = {SIGTERM, SIGINT};
std::array<struct sigaction, stopSignals.size()> formerActions;
/// Reading and writing end. A handler may do hardly more than write, so it wakes the event loop through a pipe.
std::array<int, 2> wakePipe = {-1, -1};

void wake(int) {
    const int error = errno;
    // A pipe that is full has woken the loop already.
    [[maybe_unused]] const ssize_t written = ::write(wakePipe[1], "", 1);
    errno = error;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent) {
    if (::pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        qWarning("No pipe for the signals that stop the launcher: %s", std::strerror(errno));
        return;
    }
    auto *const notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, this);
    connect(notifier, SIGNAL(activated(QSocketDescriptor, QSocketNotifier::Type)), this, SLOT(stop()));
    struct sigaction action = {};
    action.sa_handler = wake;
    action.sa_flags = SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < stopSignals.size(); ++i)
        ::sigaction(stopSignals[i], &action, &formerActions[i]);
}

TerminationSignals::~TerminationSignals() {
    if (wakePipe[0] < 0)
        return;
    for (std::size_t i = 0; i < stopSignals.size(); ++i)
        ::sigaction(stopSignals[i], &formerActions[i], nullptr);
    for (int &end : wakePipe) {
        ::close(end);
        end = -1;
    }
}

void TerminationSignals::stop() {
    // The pipe is not emptied: a loop that starts after this one ends as well.
    // Not quit(): that asks every window, and one that keeps itself open would keep the launcher. This leaves the
    // loops of modal dialogs too.
    QCoreApplication::exit(0);
}
