// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

/// Settings plug-in of System: how often its figures are read anew. It has no icon of its own.
class RefreshPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    RefreshPlugin();

    QWidget *createWindow() override;
};
