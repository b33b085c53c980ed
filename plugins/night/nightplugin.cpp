// SPDX-License-Identifier: GPL-3.0-or-later
#include "nightplugin.h"

#include <icontile.h>
#include <pngpicture.h>
#include <ui/colourchoice.h>

using namespace Qt::Literals::StringLiterals;

NightPlugin::NightPlugin() {
    setTitle(tr("Night colours"));
}

QWidget *NightPlugin::iconWidget() {
    if (!icon) {
        icon = own(new IconTile(pngPicture(u":/night/night.png"_s), tr("Night colours")));
        icon->setCheckable(true);
        icon->setChecked(PaletteFactory::set() == PaletteFactory::Night);
        connect(icon, &IconTile::clicked, this, &NightPlugin::showWindow);
    }
    return icon;
}

void NightPlugin::showWindow() {
    const bool isNight = PaletteFactory::set() == PaletteFactory::Night;
    const PaletteFactory::Set other = isNight ? PaletteFactory::Day : PaletteFactory::Night;
    ColourChoice::wear(other);
    ColourChoice::store(other);
    if (icon)
        icon->setChecked(other == PaletteFactory::Night);
}
