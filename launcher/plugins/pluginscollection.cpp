// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/pluginscollection.h"

#include "ui/launcherwindow.h"

#include <genericplugin.h>
#include <launcherplugin.h>
#include <zrconfig.h>

#include <QDebug>
#include <QFileInfo>
#include <QPluginLoader>
#include <QSettings>

#include <exception>
#include <iostream>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

enum PluginVersion : unsigned int { OldStyle = 1, Generic = 2 };

/// Why `work` threw, or nothing when it did not. The exception is over when this returns: its type may lie in
/// the very library that is about to be unmapped.
template <typename Work>
std::optional<QString> failureOf(Work work) {
    try {
        work();
    } catch (const std::exception &exception) {
        return QString::fromLocal8Bit(exception.what());
    } catch (...) {
        return u"unknown exception"_s;
    }
    return std::nullopt;
}

/// The window is never created just to be taken out.
QWidget *existingWindow(GenericPlugin *plugin) {
    return plugin->windowCreated() ? plugin->pluginWindow() : nullptr;
}

QWidget *existingWindow(LauncherPlugin *plugin) {
    return plugin->pluginWindow();
}

void tellFailure(const QString &file, const QString &reason) {
    std::cerr << "Plugin " << qPrintable(file) << " failed: " << qPrintable(reason) << std::endl;
}

/// Counted from 1 in the configuration and from 0 in the grid; an absent number becomes -1.
int gridIndex(const QVariant &number) {
    return static_cast<int>(number.toUInt() - 1U);
}

} // namespace

PluginsCollection::PluginsCollection(const QString &name, bool persistent, QObject *parent)
    : QObject(parent), collectionName(name), launcher(LauncherWindow::instance()), isPersistent(persistent) {}

PluginsCollection::~PluginsCollection() {
    unload();
}

bool PluginsCollection::enter() {
    return true;
}

void PluginsCollection::connectLeds() {
    launcher->setupLeds(QStringList());
}

void PluginsCollection::disconnectLeds() {}

void PluginsCollection::resetLeds() {}

void PluginsCollection::load() {
    QSettings store(u"talvenor"_s, u"zr-launcher"_s);
    const QStringList groups = store.childGroups();
    if (!groups.contains("plugins"_L1)) {
        std::cerr << "no plugins can be loaded because no proper settings in configuration file."
                  << std::endl;
        return;
    }
    const QString prefix = ZrConfig::textOf(store.value(u"plugins/path"_s)) + u'/';
    const QStringList names = ZrConfig::textOf(store.value("plugins/"_L1 + collectionName)).split(u' ');

    Loaded loaded;
    for (const QString &name : names) {
        if (!groups.contains(name))
            std::cerr << "Invalid configuration file: group '" << qPrintable(name) << "' is absent"
                      << std::endl;
        else if (loadGroup(store, name, prefix, loaded))
            continue;
        // An empty name is two blanks or no list at all: nobody meant a plug-in.
        if (!name.isEmpty())
            ++failedCount;
    }
    resolveSettings(loaded);
    qDebug() << "all plugins loaded";
}

bool PluginsCollection::loadGroup(QSettings &store, const QString &group, const QString &prefix,
                                  Loaded &loaded) {
    store.beginGroup(group);
    const unsigned int version = store.value(u"ver"_s).toUInt();
    const int column = gridIndex(store.value(u"col"_s));
    const int row = gridIndex(store.value(u"row"_s));
    const QString file = prefix + ZrConfig::textOf(store.value(u"name"_s));
    const QString settingsText = ZrConfig::textOf(store.value(u"settings"_s));
    store.endGroup();

    if (version == OldStyle)
        return initPlugin(file, row, column);
    if (version == Generic) {
        GenericPlugin *const plugin = initPlugin2(file, row, column);
        if (!plugin)
            return false;
        loaded.byGroup.insert(group, plugin);
        loaded.settingsText.insert(plugin, settingsText);
        return true;
    }
    // No line end: the next message goes on in this line.
    std::cerr << "Unknown version" << version << "of plugin" << qPrintable(file) << std::flush;
    return false;
}

void PluginsCollection::resolveSettings(const Loaded &loaded) {
    for (auto entry = loaded.settingsText.cbegin(); entry != loaded.settingsText.cend(); ++entry) {
        for (const QString &name : entry.value().split(u' ')) {
            if (GenericPlugin *const settingsPlugin = loaded.byGroup.value(name))
                settings[entry.key()].append(settingsPlugin);
        }
    }
}

GenericPlugin *PluginsCollection::initPlugin2(const QString &file, int row, int col) {
    qDebug().noquote().nospace() << "initPlugin2"
                                 << " : loading plugin " << file;
    auto *const plugin = load<GenericPlugin>(file);
    if (!plugin) {
        std::cerr << "initPlugin2"
                  << " : loading of plugin " << qPrintable(file) << " failed" << std::endl;
        return nullptr;
    }
    // Without an icon too: a settings plug-in shows its window only when it is asked to.
    return place(plugin, file, row, col, IconIsOptional) ? plugin : nullptr;
}

LauncherPlugin *PluginsCollection::initPlugin(const QString &file, int row, int col) {
    qDebug().noquote().nospace() << "initPlugin"
                                 << " : loading plugin " << file;
    auto *const plugin = load<LauncherPlugin>(file);
    if (!plugin)
        return nullptr;
    return place(plugin, file, row, col, IconIsRequired) ? plugin : nullptr;
}

template <typename T>
bool PluginsCollection::place(T *plugin, const QString &file, int row, int col, IconNeed need) {
    QWidget *icon = nullptr;
    const std::optional<QString> failure = failureOf([&] {
        icon = plugin->iconWidget();
        if (!icon && need == IconIsRequired)
            return;
        placeIcon(icon, file, row, col);
        launcher->connectWithPlugin(plugin);
        placeStatusWidget(plugin->statusWidget());
    });
    if (!failure)
        return icon || need == IconIsOptional;
    removeFromLauncher(icon, nullptr, nullptr);
    dropLastLoader(file, *failure);
    return false;
}

template <typename T>
T *PluginsCollection::load(const QString &file) {
    if (!QFileInfo(file).isFile()) {
        std::cerr << "Plugin " << qPrintable(file) << " not found." << std::endl;
        return nullptr;
    }
    auto *const loader = new QPluginLoader(file);
    // A missing symbol is to be found now, not when somebody presses the icon; and by default the library
    // would stay mapped after unload().
    loader->setLoadHints(QLibrary::ResolveAllSymbolsHint);
    loaders.append(loader);

    QObject *root = nullptr;
    const std::optional<QString> failure = failureOf([&] { root = loader->instance(); });
    if (failure) {
        dropLastLoader(file, *failure);
        return nullptr;
    }
    if (auto *const plugin = qobject_cast<T *>(root))
        return plugin;
    std::cerr << qPrintable(loader->errorString()) << std::endl;
    loader->unload();
    delete loaders.takeLast();
    return nullptr;
}

void PluginsCollection::placeIcon(QWidget *icon, const QString &file, int row, int col) {
    if (!icon)
        return;
    iconFiles.insert(icon, file);
    launcher->addIcon(this, icon, row, col);
}

void PluginsCollection::placeStatusWidget(QWidget *status) {
    if (status)
        launcher->addStatusPanelItem(this, status);
}

void PluginsCollection::dropLastLoader(const QString &file, const QString &reason) {
    tellFailure(file, reason);
    QPluginLoader *const loader = loaders.takeLast();
    loader->unload();
    delete loader;
}

void PluginsCollection::unload() {
    qDebug() << "unload";
    for (QPluginLoader *const loader : std::as_const(loaders)) {
        if (const std::optional<QString> failure = failureOf([&] { unloadPlugin(loader); }))
            tellFailure(loader->fileName(), *failure);
        loader->unload();
        delete loader;
    }
    loaders.clear();
}

void PluginsCollection::unloadPlugin(QPluginLoader *loader) {
    QObject *const root = loader->instance();
    if (auto *const plugin = qobject_cast<GenericPlugin *>(root))
        takeOut(plugin, loader->fileName());
    if (auto *const plugin = qobject_cast<LauncherPlugin *>(root))
        takeOut(plugin, loader->fileName());
}

template <typename T>
void PluginsCollection::takeOut(T *plugin, const QString &file) {
    // Each by itself: one that throws must not leave the others in the window.
    const auto widgetOf = [&file](auto getter) {
        QWidget *widget = nullptr;
        if (const std::optional<QString> failure = failureOf([&] { widget = getter(); }))
            tellFailure(file, *failure);
        return widget;
    };
    QWidget *const icon = widgetOf([plugin] { return plugin->iconWidget(); });
    QWidget *const status = widgetOf([plugin] { return plugin->statusWidget(); });
    QWidget *const window = widgetOf([plugin] { return existingWindow(plugin); });
    removeFromLauncher(icon, status, window);
}

void PluginsCollection::removeFromLauncher(QWidget *icon, QWidget *status, QWidget *window) {
    if (icon) {
        iconFiles.remove(icon);
        launcher->removeIcon(this, icon);
    }
    if (status)
        launcher->removeStatusPanelItem(status);
    if (window)
        launcher->removePluginWindow(window);
}
