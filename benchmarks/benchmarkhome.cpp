// SPDX-License-Identifier: GPL-3.0-or-later
#include "benchmarkhome.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

BenchmarkHome::BenchmarkHome(int plugins) {
    QDir(home.path()).mkpath(u"talvenor"_s);
    QFile::copy(QStringLiteral(FRAME_PLUGIN), home.filePath(u"libframe.so"_s));
    QFile::copy(QStringLiteral(BARE_FRAME_PLUGIN), home.filePath(u"libbareframe.so"_s));
    for (int number = 0; number < plugins; ++number) {
        QFile::copy(QStringLiteral(TILE_PLUGIN), home.filePath(u"libtile%1.so"_s.arg(number)));
        QFile::copy(QStringLiteral(BARE_PLUGIN), home.filePath(u"libbare%1.so"_s.arg(number)));
    }
    writeConfiguration(plugins);
    writeFontConfiguration();
}

QProcessEnvironment BenchmarkHome::environment() const {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_DIRS"_s, home.filePath(u"none"_s));
    environment.insert(u"ZR_SYSROOT"_s, home.path());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    return environment;
}

QProcessEnvironment BenchmarkHome::fixedEnvironment() const {
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, u"/usr/sbin:/usr/bin:/sbin:/bin"_s);
    environment.insert(u"HOME"_s, home.path());
    environment.insert(u"USER"_s, u"tester"_s);
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"TZ"_s, u"UTC"_s);
    environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
    environment.insert(u"XDG_CONFIG_DIRS"_s, home.filePath(u"none"_s));
    environment.insert(u"ZR_SYSROOT"_s, home.path());
    environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    environment.insert(u"QT_HASH_SEED"_s, u"0"_s);
    environment.insert(u"FONTCONFIG_FILE"_s, home.filePath(u"fonts.conf"_s));
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    return environment;
}

QString BenchmarkHome::pluginGroup(int number, int cell) const {
    return u"[tile%1]\nver=2\nrow=%2\ncol=%3\nname=libtile%1.so\n"_s.arg(number)
        .arg(cell / 2 + 1)
        .arg(cell % 2 + 1);
}

void BenchmarkHome::writeConfiguration(int plugins) const {
    QStringList pages;
    QString groups = u"[frame]\nver=2\nname=libframe.so\n"_s;
    QString lists;
    for (int first = 0; first == 0 || first < plugins; first += iconsPerPage) {
        const QString page = first == 0 ? u"zr"_s : u"page%1"_s.arg(first / iconsPerPage);
        QStringList names;
        if (first == 0)
            names.append(u"frame"_s);
        for (int i = first; i < qMin(plugins, first + iconsPerPage); ++i) {
            names.append(u"tile%1"_s.arg(i));
            groups += pluginGroup(i, i - first);
        }
        pages.append(page);
        lists += page + u'=' + names.join(u' ') + u'\n';
    }
    QFile store(home.filePath(u"talvenor/zr-launcher.conf"_s));
    if (store.open(QIODevice::WriteOnly))
        QTextStream(&store) << "[plugins]\npath=" << home.path() << "\npersistent=" << pages.join(u' ')
                            << '\n'
                            << lists << groups;
}

void BenchmarkHome::writeFontConfiguration() const {
    QFile fonts(home.filePath(u"fonts.conf"_s));
    if (fonts.open(QIODevice::WriteOnly))
        QTextStream(&fonts) << "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig>"
                               "<dir>/usr/share/fonts/truetype/liberation</dir><cachedir>"
                            << home.path() << "/fonts</cachedir></fontconfig>\n";
}
