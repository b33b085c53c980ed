// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>
#include <launcherplugin.h>
#include <ownedwidgets.h>

#include <QWidget>

#include <stdexcept>

// One of these is the root of each library; ODD_PLUGIN says which.
#define ODD_NO_WIDGETS 1
#define ODD_OLD_WITHOUT_ICON 2
#define ODD_PLAIN_WINDOW 3
#define ODD_ICON_THROWS 4
#define ODD_STATUS_THROWS 5
#define ODD_ROOT_THROWS 6
#define ODD_UNRESOLVED_SYMBOL 7
#define ODD_WRONG_KIND 8
#define ODD_THROWS_LATER 9

#if ODD_PLUGIN == ODD_NO_WIDGETS
/// Has neither icon nor status widget, and no window either.
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)
};
#elif ODD_PLUGIN == ODD_OLD_WITHOUT_ICON
/// Of the older kind, with a status widget but without the icon that it must have.
class OddPlugin : public LauncherPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LauncherPlugin_iid)

public:
    QWidget *iconWidget() override { return nullptr; }
    QWidget *pluginWindow() override { return nullptr; }
    QWidget *statusWidget() override { return &status; }

private:
    QWidget status;
};
#elif ODD_PLUGIN == ODD_PLAIN_WINDOW
/// No icon, and a window that is no PluginWindow.
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    QWidget *createWindow() override { return new QWidget; }
};
#elif ODD_PLUGIN == ODD_ICON_THROWS
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    QWidget *iconWidget() override { throw std::runtime_error("no picture for the icon"); }
};
#elif ODD_PLUGIN == ODD_STATUS_THROWS
/// Its exception is of a type that only this library knows.
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    struct OwnError {};

    QWidget *iconWidget() override { return &icon; }
    QWidget *statusWidget() override { throw OwnError(); }

private:
    QWidget icon;
};
#elif ODD_PLUGIN == ODD_ROOT_THROWS
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    OddPlugin() { throw std::runtime_error("no device"); }
};
#elif ODD_PLUGIN == ODD_UNRESOLVED_SYMBOL
void functionThatNobodyDefines();

class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    QWidget *iconWidget() override {
        functionThatNobodyDefines();
        return nullptr;
    }
};
#elif ODD_PLUGIN == ODD_WRONG_KIND
/// A sound Qt plug-in, but neither of the launcher's two kinds.
class OddPlugin : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "example.Other/1.0")
};
#elif ODD_PLUGIN == ODD_THROWS_LATER
/// Its status widget can be had once; its icon lives in the library's own memory.
class OddPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    OddPlugin() { icon.setObjectName(QStringLiteral("icon that stays too long")); }
    QWidget *iconWidget() override { return &icon; }
    QWidget *statusWidget() override {
        if (wasAsked)
            throw std::runtime_error("no status any more");
        wasAsked = true;
        return nullptr;
    }

private:
    QWidget icon;
    bool wasAsked = false;
};
#endif
