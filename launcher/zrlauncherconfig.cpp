// SPDX-License-Identifier: GPL-3.0-or-later
#include "zrlauncherconfig.h"

using namespace Qt::Literals::StringLiterals;

ZrLauncherConfig::ZrLauncherConfig(const QString &group) : ZrConfig(u"zr-launcher"_s, group) {}

ZrLauncherConfig::ZrLauncherConfig(const QString &group, const QString &key)
    : ZrConfig(u"zr-launcher"_s, group, key) {}

ZrLauncherConfig::~ZrLauncherConfig() = default;
