// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <launcherplugin.h>
#include <ownedwidgets.h>

class ReportsWindow;

/// The reports that have been saved on the instrument: to look at and to delete. A plug-in of the older kind.
class ReportsPlugin : public LauncherPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LauncherPlugin_iid)

public:
    QWidget *iconWidget() override;
    /// Null until the icon was first pressed: unloading is not to create a window.
    QWidget *pluginWindow() override;
    QWidget *statusWidget() override;

private:
    void showWindow();

    QPointer<QWidget> icon;
    QPointer<ReportsWindow> window;
    OwnedWidgets ownedWidgets;
};
