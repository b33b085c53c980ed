// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "firstframe.h"

#include <QObject>

#include <optional>

/// Brings the watcher of the first frame into the floor's process, when ZR_BENCH_START_NS asks for it.
class BareFramePlugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zr.benchmarks.BareFramePlugin")

public:
    BareFramePlugin();

private:
    std::optional<FirstFrame> firstFrame;
};
