// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/launcherwindow.h"

#include "testconfig.h"

#include <QFile>
#include <QPluginLoader>
#include <QPushButton>
#include <QTest>

/// Where the library of a test plug-in lies.
inline QString testPluginFile(const QString &name) {
    return QStringLiteral(TEST_PLUGIN_DIR "/lib%1.so").arg(name);
}

/// The root object of a test plug-in that a collection has loaded.
inline QObject *pluginRoot(const QString &name) {
    return QPluginLoader(testPluginFile(name)).instance();
}

inline bool isMapped(const QString &name) {
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(testPluginFile(name).toLocal8Bit());
}

/// Puts the test plug-ins `names` into collection "zr", one below the other.
inline void configurePlugins(TestConfig &config, const QStringList &names) {
    config.setPersistent(QStringLiteral("zr"));
    config.setPath(QStringLiteral(TEST_PLUGIN_DIR));
    config.setCollection(QStringLiteral("zr"), names.join(QLatin1Char(' ')));
    unsigned int row = 1;
    for (const QString &name : names) {
        const unsigned int version = name.startsWith(QLatin1String("old")) ? 1 : 2;
        config.addPlugin(name, {version, row++, 1, QStringLiteral("lib%1.so").arg(name), QString()});
    }
}

template <typename Child = QWidget>
Child *find(const QObject &parent, const char *name) {
    return parent.findChild<Child *>(QString::fromLatin1(name));
}

inline void clickIcon(const QObject &window, const char *name) {
    auto *const icon = find<QPushButton>(window, name);
    QVERIFY2(icon, name);
    icon->click();
}
