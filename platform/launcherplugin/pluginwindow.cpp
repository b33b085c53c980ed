// SPDX-License-Identifier: GPL-3.0-or-later
#include "pluginwindow.h"

PluginWindow::PluginWindow(QWidget *parent) : QWidget(parent) {}

PluginWindow::~PluginWindow() = default;

bool PluginWindow::stepBack() {
    return true;
}
