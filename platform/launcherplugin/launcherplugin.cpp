// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherplugin.h"

LauncherPlugin::LauncherPlugin(QObject *parent) : QObject(parent) {}

LauncherPlugin::~LauncherPlugin() = default;
