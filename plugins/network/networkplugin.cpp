// SPDX-License-Identifier: GPL-3.0-or-later
#include "networkplugin.h"

#include "networkreader.h"
#include "networkstatus.h"
#include "networkwindow.h"

#include <hostsource.h>
#include <icontile.h>
#include <pngpicture.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconRows = 2;

QString netDirectory() {
    return hostSource(u"/sys/class/net"_s);
}

} // namespace

NetworkPlugin::NetworkPlugin() {
    setTitle(tr("Network"));
}

QWidget *NetworkPlugin::createWindow() {
    return new NetworkWindow(std::make_unique<NetworkReader>(netDirectory()));
}

QWidget *NetworkPlugin::iconWidget() {
    if (!icon) {
        auto *const tile = own(new IconTile(pngPicture(u":/network/network.png"_s), tr("Network")));
        tile->setProperty("rows", iconRows);
        connect(tile, &IconTile::clicked, this, &NetworkPlugin::showWindow);
        icon = tile;
    }
    return icon;
}

QWidget *NetworkPlugin::statusWidget() {
    if (!status)
        status = own(new NetworkStatus(netDirectory()));
    return status;
}
