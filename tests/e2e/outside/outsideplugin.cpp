// SPDX-License-Identifier: GPL-3.0-or-later
#include "outsideplugin.h"

#include <icontile.h>
#include <pluginwindow.h>
#include <ui/launcherwindow.h>
#include <zrlauncherconfig.h>

static_assert(ZR_PLUGIN_API_VERSION == 1);

OutsidePlugin::OutsidePlugin() : icon(own(new IconTile(QIcon(), QStringLiteral("Outside")))) {
    icon->setObjectName(QStringLiteral("icon outside"));
    connect(icon, &QAbstractButton::clicked, this, &GenericPlugin::showWindow);
}

QWidget *OutsidePlugin::createWindow() {
    auto *const window = new PluginWindow;
    window->setObjectName(QStringLiteral("window outside"));
    const QString directory = ZrLauncherConfig(QStringLiteral("paths"), QStringLiteral("main")).string();
    window->setWindowTitle(LauncherWindow::instance()->measTitlePrefix() + directory);
    return window;
}

QWidget *OutsidePlugin::iconWidget() {
    return icon;
}
