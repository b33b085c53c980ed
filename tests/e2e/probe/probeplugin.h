// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "probe.h"

#include <genericplugin.h>

/// Brings the probe into the launcher's process. Shows nothing.
class ProbePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    ProbePlugin();

    /// A window with a shortcut on the brightness key.
    QWidget *createWindow() override;

private:
    Probe probe;
};
