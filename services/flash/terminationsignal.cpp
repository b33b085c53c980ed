// SPDX-License-Identifier: GPL-3.0-or-later
#include "terminationsignal.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace {

int writer = -1;

extern "C" void passOn(int /*signal*/) {
    [[maybe_unused]] const ssize_t written = ::write(writer, "", 1);
}

} // namespace

TerminationSignal::TerminationSignal() {
    // Signals are not blocked and read instead: programs started by us would inherit that.
    int ends[2] = {-1, -1};
    if (::pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    reader = ends[0];
    writer = ends[1];
    notifier = std::make_unique<QSocketNotifier>(reader, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &TerminationSignal::arrived);
    std::signal(SIGTERM, passOn);
    std::signal(SIGINT, passOn);
}

TerminationSignal::~TerminationSignal() {
    std::signal(SIGTERM, SIG_DFL);
    std::signal(SIGINT, SIG_DFL);
    notifier.reset();
    ::close(reader);
    ::close(writer);
}
