// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

/// A plug-in with an icon and nothing else.
class TilePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    TilePlugin();

    QWidget *iconWidget() override { return icon; }

private:
    QWidget *icon;
};
