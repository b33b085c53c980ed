// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

/// Identifies a plug-in of this kind in its metadata: Q_PLUGIN_METADATA(IID LauncherPlugin_iid).
#define LauncherPlugin_iid "talvenor.zr-launcher.LauncherPlugin/1.0"

/// What a plug-in of the older kind offers. All three widgets stay the plug-in's; each may be null.
///
/// Plug-ins are built apart from the launcher: the order of the virtual operations is part of the contract.
class LauncherPluginWidgets {
public:
    virtual QWidget *iconWidget() = 0;
    /// Also called when the plug-in is unloaded, whether or not the window was ever shown.
    virtual QWidget *pluginWindow() = 0;
    virtual QWidget *statusWidget() = 0;

protected:
    ~LauncherPluginWidgets() = default;
};

/// Root object of a plug-in library of the older kind, configuration "ver" 1: no title, no keeper, no settings
/// plug-ins. Without an icon it counts as failed. GUI thread only.
class LauncherPlugin : public QObject, public LauncherPluginWidgets {
    Q_OBJECT

public:
    explicit LauncherPlugin(QObject *parent = nullptr);
    ~LauncherPlugin() override;

signals:
    /// Asks the launcher to show `window`. To be emitted by the plug-in itself.
    void setCurrentWidget(QWidget *window);
};
