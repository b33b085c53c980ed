// SPDX-License-Identifier: GPL-3.0-or-later
#include "genericplugin.h"

GenericPlugin::GenericPlugin(QObject *parent) : QObject(parent) {}

GenericPlugin::~GenericPlugin() = default;

QWidget *GenericPlugin::pluginWindow() {
    if (!createdWindow) {
        createdWindow = createWindow();
        if (createdWindow)
            own(createdWindow.get());
    }
    return createdWindow;
}

QWidget *GenericPlugin::createWindow() {
    return nullptr;
}

QWidget *GenericPlugin::iconWidget() {
    return nullptr;
}

QWidget *GenericPlugin::statusWidget() {
    return nullptr;
}

void GenericPlugin::showWindow() {
    emit setCurrentWidget(pluginWindow());
}

void GenericPlugin::setTitle(const QString &title) {
    currentTitle = title;
}

void GenericPlugin::setKeeper(AbstractKeeper *keeper) {
    currentKeeper = keeper;
}
