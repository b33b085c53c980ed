// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <abstractkeeper.h>
#include <genericplugin.h>
#include <pluginwindow.h>

#include <QPushButton>

/// Keeps nothing; counts. "canBeSaved" and "canBeLoaded" are its answers, "saves" and "loads" what it was told.
class ScriptedKeeper : public AbstractKeeper {
    Q_OBJECT

public:
    using AbstractKeeper::AbstractKeeper;

    bool canBeLoaded() override { return property("canBeLoaded").toBool(); }
    bool canBeSaved() override { return property("canBeSaved").toBool(); }
    void save() override { setProperty("saves", property("saves").toInt() + 1); }
    void load() override { setProperty("loads", property("loads").toInt() + 1); }
};

/// Has as many levels as its property "levels" says; "stepsBack" counts how often it was asked to go back.
class ScriptedWindow : public PluginWindow {
    Q_OBJECT

public:
    using PluginWindow::PluginWindow;

    bool stepBack() override {
        setProperty("stepsBack", property("stepsBack").toInt() + 1);
        const int levels = property("levels").toInt();
        setProperty("levels", levels - 1);
        return levels <= 0;
    }
};

/// A plug-in that a test leads through properties of its parts. Widgets are named after the plug-in.
class ScriptedPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    ScriptedPlugin() {
        const QString name = QStringLiteral(PLUGIN_NAME);
        setObjectName(name);
        setTitle(name);
        setKeeper(new ScriptedKeeper(this));
        icon = own(new QPushButton(name));
        icon->setObjectName(QStringLiteral("icon ") + name);
        icon->setProperty("rows", PLUGIN_ROWS);
        connect(icon, &QPushButton::clicked, this, &ScriptedPlugin::showWindow);
        status = own(new QWidget);
        status->setObjectName(QStringLiteral("status ") + name);
    }

    QWidget *createWindow() override {
        auto *const window = new ScriptedWindow;
        window->setObjectName(QStringLiteral("window ") + objectName());
        window->setWindowTitle(QStringLiteral("Title of ") + objectName());
        return window;
    }
    QWidget *iconWidget() override { return icon; }
    QWidget *statusWidget() override { return status; }

private:
    QPushButton *icon;
    QWidget *status;
};
