// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportsplugin.h"

#include "reportswindow.h"

#include <icontile.h>
#include <pngpicture.h>

using namespace Qt::Literals::StringLiterals;

QWidget *ReportsPlugin::iconWidget() {
    if (!icon) {
        auto *const tile =
            ownedWidgets.add(new IconTile(pngPicture(u":/reports/reports.png"_s), tr("Reports")));
        connect(tile, &IconTile::clicked, this, &ReportsPlugin::showWindow);
        icon = tile;
    }
    return icon;
}

QWidget *ReportsPlugin::pluginWindow() {
    return window;
}

QWidget *ReportsPlugin::statusWidget() {
    return nullptr;
}

void ReportsPlugin::showWindow() {
    if (!window)
        window = ownedWidgets.add(new ReportsWindow);
    emit setCurrentWidget(window);
    window->announceLevel();
}
