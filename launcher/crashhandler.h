// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

/// Writes the call stack of the fault to standard error and ends the process with status 1.
///
/// An SA_SIGINFO handler that uses none of its arguments. Whatever state the process is in, it ends within a few
/// seconds: when the trace itself faults, aborts or gets stuck, in the allocator or under a lock, the bare frames
/// are written in its place. Of several threads that fault, the first is told.
[[noreturn]] void crit_err_hdlr(int signal, siginfo_t *info, void *context);

/// Makes `crit_err_hdlr` the handler of segmentation faults, and of nothing else. When that cannot be done it says
/// so on standard error and ends the process with status 1.
void installCrashHandler();
