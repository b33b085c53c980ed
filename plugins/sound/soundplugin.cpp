// SPDX-License-Identifier: GPL-3.0-or-later
#include "soundplugin.h"

#include <icontile.h>
#include <pngpicture.h>
#include <power/volumepanel.h>
#include <ui/launcherwindow.h>

using namespace Qt::Literals::StringLiterals;

SoundPlugin::SoundPlugin() {
    setTitle(tr("Sound"));
}

QWidget *SoundPlugin::iconWidget() {
    if (!icon) {
        auto *const tile = own(new IconTile(pngPicture(u":/sound/sound.png"_s), tr("Sound")));
        connect(tile, &IconTile::clicked, this, &SoundPlugin::showWindow);
        icon = tile;
    }
    return icon;
}

void SoundPlugin::showWindow() {
    delete panel;
    panel = own(new VolumePanel(LauncherWindow::instance()));
    panel->invoke(QRect(icon->mapToGlobal(QPoint()), icon->size()));
}
