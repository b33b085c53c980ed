// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <launcherplugin.h>
#include <ownedwidgets.h>

#include <QPushButton>

/// A plug-in of the older kind with all its widgets.
class OldStylePlugin : public LauncherPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LauncherPlugin_iid)

public:
    OldStylePlugin() {
        icon = widgets.add(new QPushButton(QStringLiteral("old")));
        icon->setObjectName(QStringLiteral("icon old"));
        window = widgets.add(new QWidget);
        window->setObjectName(QStringLiteral("window old"));
        window->setWindowTitle(QStringLiteral("Title of old"));
        status = widgets.add(new QWidget);
        status->setObjectName(QStringLiteral("status old"));
        connect(icon, &QPushButton::clicked, this, [this] { emit setCurrentWidget(window); });
    }

    QWidget *iconWidget() override { return icon; }
    QWidget *pluginWindow() override { return window; }
    QWidget *statusWidget() override { return status; }

private:
    OwnedWidgets widgets;
    QPushButton *icon;
    QWidget *window;
    QWidget *status;
};
