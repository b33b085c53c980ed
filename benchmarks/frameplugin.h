// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "firstframe.h"

#include <genericplugin.h>

#include <optional>

/// Brings the watcher of the first frame into the launcher's process, when ZR_BENCH_START_NS asks for it.
class FramePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    FramePlugin();

private:
    std::optional<FirstFrame> firstFrame;
};
