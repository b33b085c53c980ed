// SPDX-License-Identifier: GPL-3.0-or-later
#include "testconfig.h"

#include <QSettings>

using namespace Qt::Literals::StringLiterals;

TestConfig::TestConfig() {
    QSettings(u"talvenor"_s, u"zr-launcher"_s).clear();
}

void TestConfig::set(const QString &key, const QVariant &value) {
    QSettings(u"talvenor"_s, u"zr-launcher"_s).setValue(key, value);
}

QString TestConfig::stored(const QString &key) {
    QSettings store(u"talvenor"_s, u"zr-launcher"_s);
    store.sync();
    return store.value(key).toString();
}

void TestConfig::setPath(const QString &directory) {
    set(u"plugins/path"_s, directory);
}

void TestConfig::setCollection(const QString &name, const QString &groups) {
    set("plugins/"_L1 + name, groups);
}

void TestConfig::setPersistent(const QString &names) {
    set(u"plugins/persistent"_s, names);
}

void TestConfig::addPlugin(const QString &group, const Plugin &plugin) {
    set(group + "/ver"_L1, plugin.version);
    set(group + "/row"_L1, plugin.row);
    set(group + "/col"_L1, plugin.column);
    set(group + "/name"_L1, plugin.file);
    if (!plugin.settings.isNull())
        set(group + "/settings"_L1, plugin.settings);
}
