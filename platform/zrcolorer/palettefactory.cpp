// SPDX-License-Identifier: GPL-3.0-or-later
#include "palettefactory.h"

#include "palettes.h"

#include <QLoggingCategory>
#include <QMap>

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(colorer, "zr.colorer", QtWarningMsg)

const QMap<QString, QPalette> &allPalettes() {
    static const QMap<QString, QPalette> palettes{
        {u"GenericWindow"_s, genericWindowPalette()},
        {u"Battery"_s, batteryPalette()},
        {u"Chrome"_s, chromePalette()},
        {u"TimeButton"_s, timeButtonPalette()},
        {u"quality"_s, qualityPalette()},
    };
    return palettes;
}

} // namespace

QPalette PaletteFactory::getPalette(const QString &name) {
    const auto palette = allPalettes().constFind(name);
    if (palette != allPalettes().constEnd())
        return *palette;
    qCWarning(colorer) << "There is no palette named" << name;
    return allPalettes().value(u"GenericWindow"_s);
}

QStringList PaletteFactory::names() {
    return allPalettes().keys();
}
