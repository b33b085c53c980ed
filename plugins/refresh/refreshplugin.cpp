// SPDX-License-Identifier: GPL-3.0-or-later
#include "refreshplugin.h"

#include "refreshwindow.h"

RefreshPlugin::RefreshPlugin() {
    setTitle(tr("Refresh rate"));
}

QWidget *RefreshPlugin::createWindow() {
    return new RefreshWindow;
}
