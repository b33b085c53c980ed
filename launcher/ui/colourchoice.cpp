// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/colourchoice.h"

#include "zrlauncherconfig.h"

#include <styleoverride.h>

#include <QApplication>

using namespace Qt::Literals::StringLiterals;

namespace {

ZrLauncherConfig storedWord() {
    return {u"look"_s, u"colours"_s};
}

} // namespace

PaletteFactory::Set ColourChoice::stored() {
    return storedWord().string() == "night"_L1 ? PaletteFactory::Night : PaletteFactory::Day;
}

void ColourChoice::wear(PaletteFactory::Set set) {
    PaletteFactory::setSet(set);
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    StyleOverride::applyPalettes();
}

void ColourChoice::store(PaletteFactory::Set set) {
    storedWord() = set == PaletteFactory::Night ? u"night"_s : u"day"_s;
}
