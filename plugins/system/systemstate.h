// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "memoryuse.h"
#include "mounts.h"

#include <volume.h>

#include <QString>

#include <chrono>
#include <optional>

/// What the machine is and does at one moment. What could not be found out is empty.
struct SystemState {
    QString launcher;
    QString kernel;
    QString host;
    QString processor;
    std::optional<int> load; ///< percent
    std::optional<MemoryUse> memory;
    std::optional<Volume> root;
    /// Nothing when the user's home lies on the root file system too.
    std::optional<Volume> home;
    std::optional<std::chrono::seconds> uptime;
};

/// A mounted file system and how full it is.
struct MountedVolume {
    Mount mount;
    Volume volume;
};
