// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QList>
#include <QMap>
#include <QObject>
#include <QString>

class GenericPlugin;
class LauncherPlugin;
class LauncherWindow;
class QPluginLoader;
class QSettings;
class QWidget;

/// The plug-ins that fill one page of the launcher: the instrument's own ("zr") or those of a card type.
///
/// Loads the libraries that the configuration names for it, places their widgets in the launcher window, and
/// takes them out again. A plug-in that cannot be loaded is told on standard error and never keeps the others
/// from loading. GUI thread only.
class PluginsCollection : public QObject {
    Q_OBJECT

public:
    PluginsCollection(const QString &name, bool persistent, QObject *parent = nullptr);
    ~PluginsCollection() override;

    /// Called when the page is about to be entered; false refuses it.
    virtual bool enter();
    /// Hooks the source of this page's LEDs to the window. The base has no LEDs.
    virtual void connectLeds();
    virtual void disconnectLeds();
    virtual void resetLeds();

    QString name() const { return collectionName; }
    /// Whether the page stays when cards come and go.
    bool persistent() const { return isPersistent; }

    /// Loads every plug-in that the configuration lists under this collection's name. To be called once, when
    /// the window has made the page.
    void load();
    /// How many of the plug-ins that the configuration lists could not be loaded.
    int failedPlugins() const { return failedCount; }
    /// Takes every widget out of the window and unmaps the libraries, in loading order.
    void unload();

    bool hasSettings(const GenericPlugin *plugin) const { return settings.contains(plugin); }
    /// The settings plug-ins of `plugin`, in the order that the configuration names them.
    QList<GenericPlugin *> settingPlugins(const GenericPlugin *plugin) const {
        return settings.value(plugin);
    }

    GenericPlugin *initPlugin2(const QString &file, int row, int col);
    LauncherPlugin *initPlugin(const QString &file, int row, int col);

    /// The library that `icon` belongs to.
    QString fileOfIcon(const QWidget *icon) const { return iconFiles.value(icon); }

private:
    /// What the configuration says of the version-2 plug-ins loaded so far.
    struct Loaded {
        QMap<QString, GenericPlugin *> byGroup;
        QMap<GenericPlugin *, QString> settingsText;
    };

    enum IconNeed { IconIsOptional, IconIsRequired };

    template <typename T>
    T *load(const QString &file);
    template <typename T>
    bool place(T *plugin, const QString &file, int row, int col, IconNeed need);
    bool loadGroup(QSettings &store, const QString &group, const QString &prefix, Loaded &loaded);
    void resolveSettings(const Loaded &loaded);
    void placeIcon(QWidget *icon, const QString &file, int row, int col);
    void placeStatusWidget(QWidget *status);
    void dropLastLoader(const QString &file, const QString &reason);
    void unloadPlugin(QPluginLoader *loader);
    template <typename T>
    void takeOut(T *plugin, const QString &file);
    void removeFromLauncher(QWidget *icon, QWidget *status, QWidget *window);

    QString collectionName;
    QList<QPluginLoader *> loaders;
    LauncherWindow *launcher;
    bool isPersistent;
    int failedCount = 0;
    QMap<const GenericPlugin *, QList<GenericPlugin *>> settings;
    QHash<const QWidget *, QString> iconFiles;
};
