// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <chrono>
#include <optional>

/// A launcher that ended by a crash in a plug-in.
struct Crash {
    /// On the clock that counts from the machine's start, time asleep included: nobody sets it.
    std::chrono::milliseconds moment{};
    /// The plug-in library that stood topmost in the trace or, where there is none, was being loaded.
    QString library;
    /// Its lines, or one that says why there are none.
    QString trace;

    bool operator==(const Crash &) const = default;
};

/// How many crashes within a minute cost a plug-in its place.
constexpr qsizetype crashesToLeaveOut = 3;

/// Those of the crashes that still count at `now`.
QList<Crash> withinLastMinute(const QList<Crash> &crashes, std::chrono::milliseconds now);

/// Once there are three crashes, the last crash of the plug-in that is to be left out: of the one that crashed most
/// often, the latest of several. Nothing before.
std::optional<Crash> crashToLeaveOut(const QList<Crash> &crashes);

/// The moment now, on the clock that `Crash` is told by.
std::chrono::milliseconds sinceMachineStart();
