// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettefactory.h"

#include "palettes.h"

#include <QLoggingCategory>
#include <QMap>

#include <atomic>

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(colorer, "zr.colorer", QtWarningMsg)

using Palettes = QMap<QString, QPalette>;

std::atomic<PaletteFactory::Set> currentSet = PaletteFactory::Day;

Palettes makePalettes(PaletteFactory::Set set) {
    return {
        {u"GenericWindow"_s, genericWindowPalette(set)},
        {u"Battery"_s, batteryPalette(set)},
        {u"Chrome"_s, chromePalette(set)},
        {u"Paper"_s, genericWindowPalette(PaletteFactory::Day)},
        {u"Picture"_s, picturePalette(set)},
        {u"Slider"_s, sliderPalette(set)},
        {u"TimeButton"_s, timeButtonPalette(set)},
        {u"quality"_s, qualityPalette(set)},
    };
}

const Palettes &currentPalettes() {
    // Each is made when it is first worn: most starts need one only.
    if (currentSet == PaletteFactory::Night) {
        static const Palettes night = makePalettes(PaletteFactory::Night);
        return night;
    }
    static const Palettes day = makePalettes(PaletteFactory::Day);
    return day;
}

} // namespace

PaletteFactory::Set PaletteFactory::set() {
    return currentSet;
}

void PaletteFactory::setSet(Set set) {
    currentSet = set;
}

QPalette PaletteFactory::getPalette(const QString &name) {
    const Palettes &palettes = currentPalettes();
    const auto palette = palettes.constFind(name);
    if (palette != palettes.constEnd())
        return *palette;
    qCWarning(colorer) << "There is no palette named" << name;
    return palettes.value(u"GenericWindow"_s);
}

QStringList PaletteFactory::names() {
    return currentPalettes().keys();
}
