// SPDX-License-Identifier: GPL-3.0-or-later
#include "pluginlists.h"

#include <zrconfig.h>

#include <QDir>
#include <QFileInfo>
#include <QSettings>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

QString resolvedLibrary(const QString &file) {
    const QString canonical = QFileInfo(file).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(file) : canonical;
}

QList<ListedPlugin> listedPlugins(const QSettings &store) {
    const QString prefix = ZrConfig::textOf(store.value(u"plugins/path"_s)) + u'/';
    QList<ListedPlugin> plugins;
    for (const QString &key : store.allKeys()) {
        const QString collection = key.section(u'/', 1);
        if (!key.startsWith("plugins/"_L1) || collection == "path"_L1 || collection == "persistent"_L1)
            continue;
        for (const QString &group : ZrConfig::textOf(store.value(key)).split(u' ', Qt::SkipEmptyParts)) {
            const QString name = ZrConfig::textOf(store.value(group + "/name"_L1));
            if (!name.isEmpty())
                plugins.append({collection, group, resolvedLibrary(prefix + name)});
        }
    }
    return plugins;
}

std::optional<QString> topmostListed(const QStringList &modules, const QList<ListedPlugin> &plugins) {
    const auto isListed = [&plugins](const QString &module) {
        return std::any_of(plugins.cbegin(), plugins.cend(),
                           [&module](const ListedPlugin &plugin) { return plugin.library == module; });
    };
    const auto topmost = std::find_if(modules.cbegin(), modules.cend(), isListed);
    return topmost == modules.cend() ? std::nullopt : std::optional(*topmost);
}

QString noticeGroup(const QString &group) {
    return "notice-"_L1 + group;
}

QString withNotices(const QString &list, const QStringList &groups) {
    QStringList names = list.split(u' ');
    for (QString &name : names) {
        if (groups.contains(name))
            name = noticeGroup(name);
    }
    return names.join(u' ');
}

QString withoutNotices(const QString &list, const QStringList &groups) {
    QStringList names = list.split(u' ');
    for (QString &name : names) {
        const auto original = std::find_if(groups.cbegin(), groups.cend(), [&name](const QString &group) {
            return noticeGroup(group) == name;
        });
        if (original != groups.cend())
            name = *original;
    }
    return names.join(u' ');
}
