// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "startstate.h"

#include <QStringList>

#include <chrono>
#include <optional>

class LauncherRun;
class TraceReader;

/// Starts the launcher once, without the plug-ins that made it crash since the machine was started, and remembers how
/// it ended. A start that comes after failed runs waits before.
class LauncherStart {
public:
    /// `runDirectory` is where failures are remembered until the next start of the machine; empty: nowhere.
    LauncherStart(const QString &launcher, const QStringList &arguments, const QString &runDirectory,
                  std::chrono::seconds longestPause);

    /// The status to end with.
    int run();

private:
    QString stateFile() const;
    /// The signal that came meanwhile.
    std::optional<int> waitAfterFailures() const;
    int runAndRemember(LauncherRun &launcherRun);
    int runWithoutLeftOut(LauncherRun &launcherRun) const;
    /// The shipped directory as it is reached from "plugins"/"path", where the launcher looks libraries up.
    QString pathOfNotices(const QString &pluginDirectory) const;
    /// Whether the crash costs a plug-in its place.
    bool rememberCrash(const TraceReader &trace, int status);
    void rememberFailedRuns(qint64 count);

    QString launcher;
    QStringList arguments;
    QString runDirectory;
    std::chrono::seconds longestPause;
    QString shippedPlugins;
    StartState state;
};
