// SPDX-License-Identifier: GPL-3.0-or-later
#include "frameplugin.h"

FramePlugin::FramePlugin() {
    if (qEnvironmentVariableIsSet("ZR_BENCH_START_NS"))
        firstFrame.emplace();
}
