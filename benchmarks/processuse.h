// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What all threads of a process that lives have used so far.
struct ProcessUse {
    /// Each switch to one of them is a wake-up.
    qint64 wakeUps = 0;
    qint64 processorNs = 0;
};

/// `process` is the name of its directory below /proc: a number, or "self".
ProcessUse useOf(const QString &process);
