// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <zrconfig.h>

/// A handle on the launcher's own store, which the measurement plug-ins share. See ZrConfig.
class ZrLauncherConfig : public ZrConfig {
public:
    explicit ZrLauncherConfig(const QString &group);
    ZrLauncherConfig(const QString &group, const QString &key);
    ~ZrLauncherConfig() override;

    using ZrConfig::operator=;
};
