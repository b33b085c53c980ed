// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemplugin.h"

#include "systemkeeper.h"
#include "systemreader.h"
#include "systemstatus.h"
#include "systemwindow.h"

#include <buildinfo.h>
#include <hostsource.h>
#include <icontile.h>
#include <pngpicture.h>

#include <QDir>

using namespace Qt::Literals::StringLiterals;

SystemPlugin::SystemPlugin()
    : reader(std::make_shared<SystemReader>(
          SystemSources{hostSource(u"/proc"_s, u"meminfo"_s), u"/"_s, QDir::homePath()},
          QString::fromUtf8(build_name))),
      systemKeeper(new SystemKeeper(reader, this)) {
    setTitle(tr("System"));
    setKeeper(systemKeeper);
}

QWidget *SystemPlugin::createWindow() {
    auto *const window = new SystemWindow(reader);
    connect(systemKeeper, &SystemKeeper::saved, window, &SystemWindow::tellSuccess);
    connect(systemKeeper, &SystemKeeper::failed, window, &SystemWindow::tellFailure);
    return window;
}

QWidget *SystemPlugin::iconWidget() {
    if (!icon) {
        auto *const tile = own(new IconTile(pngPicture(u":/system/system.png"_s), tr("System")));
        connect(tile, &IconTile::clicked, this, &SystemPlugin::showWindow);
        icon = tile;
    }
    return icon;
}

QWidget *SystemPlugin::statusWidget() {
    if (!status)
        status = own(new SystemStatus(reader));
    return status;
}

void SystemPlugin::showWindow() {
    GenericPlugin::showWindow();
    static_cast<SystemWindow *>(pluginWindow())->announceLevel();
}
