// SPDX-License-Identifier: GPL-3.0-or-later
// Preloaded: a kernel that lets nobody catch a signal.
#include <csignal>

extern "C" int sigaction(int, const struct sigaction *, struct sigaction *) noexcept {
    return -1;
}
