// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "crashes.h"

#include <QByteArray>

/// A plug-in that is left out until the next start of the machine, and what is known about it.
struct LeftOutPlugin {
    QString library;
    qint64 crashes = 0;
    /// The lines of the trace of its last crash.
    QString trace;

    bool operator==(const LeftOutPlugin &) const = default;
};

/// What is remembered from one start of the launcher to the next.
struct StartState {
    QList<Crash> crashes;
    QList<LeftOutPlugin> leftOut;
    /// In a row, directly before the next start.
    qint64 failedRuns = 0;

    bool operator==(const StartState &) const = default;
};

QByteArray toBytes(const StartState &state);
/// Nothing when the bytes are not what `toBytes()` makes.
std::optional<StartState> stateFrom(const QByteArray &bytes);

/// The state in a file. None is remembered when there is no file yet; a damaged one is told on standard error.
StartState readState(const QString &file);
/// All or nothing; what goes wrong is told on standard error.
void writeState(const QString &file, const StartState &state);
