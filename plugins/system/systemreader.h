// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cputimes.h"
#include "systemstate.h"

/// Where the kernel tells about the machine.
struct SystemSources {
    QString procDirectory;
    QString rootDirectory;
    QString homeDirectory;
};

/// Asks the machine for its state. Each reading takes well under a millisecond and never blocks.
class SystemReader {
public:
    /// `launcherVersion` is passed on in each state.
    SystemReader(const SystemSources &sources, const QString &launcherVersion);

    /// The load is that since the reading before, or since the start for the first one.
    SystemState read();
    QList<MountedVolume> readStorage() const;

private:
    QByteArray procFile(const QString &name) const;
    QString processorName() const;
    void updateLoad();

    SystemSources systemSources;
    /// What does not change while the machine runs.
    SystemState constants;
    CpuTimes lastTimes;
    std::optional<int> lastLoad;
};
