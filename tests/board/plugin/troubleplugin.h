// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

/// Crashes as soon as it is loaded while there is a file /run/zr-session/crash, and hangs when its icon is pressed.
class TroublePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    TroublePlugin();

    QWidget *createWindow() override;
    QWidget *iconWidget() override;

public slots:
    void hang();
    void crash();

private:
    QWidget *icon;
};
