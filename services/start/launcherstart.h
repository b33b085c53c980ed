// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "startstate.h"

#include <QStringList>

class LauncherRun;
class TraceReader;

/// Starts the launcher once, without the plug-ins that made it crash since the machine was started, and remembers how
/// it ended.
class LauncherStart {
public:
    /// `runDirectory` is where crashes are remembered until the next start of the machine; empty: nowhere.
    LauncherStart(const QString &launcher, const QStringList &arguments, const QString &runDirectory);

    /// The status to end with.
    int run();

private:
    QString stateFile() const;
    int runWithoutLeftOut(LauncherRun &launcherRun) const;
    /// The shipped directory as it is reached from "plugins"/"path", where the launcher looks libraries up.
    QString pathOfNotices(const QString &pluginDirectory) const;
    void remember(const TraceReader &trace);

    QString launcher;
    QStringList arguments;
    QString runDirectory;
    QString shippedPlugins;
    StartState state;
};
