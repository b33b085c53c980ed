// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "firstframe.h"

#include <genericplugin.h>

/// Brings the watcher of the first frame into the launcher's process.
class FramePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

private:
    FirstFrame firstFrame;
};
