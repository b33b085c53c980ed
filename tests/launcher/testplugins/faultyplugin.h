// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

class QPushButton;

/// Does what ends a launcher at the place that the library was built for; most follow a bad pointer.
class FaultyPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    FaultyPlugin();

    QWidget *iconWidget() override;

private:
    void useIcon();

    QPushButton *icon;
};
