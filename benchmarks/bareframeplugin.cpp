// SPDX-License-Identifier: GPL-3.0-or-later
#include "bareframeplugin.h"

BareFramePlugin::BareFramePlugin() {
    if (qEnvironmentVariableIsSet("ZR_BENCH_START_NS"))
        firstFrame.emplace();
}
