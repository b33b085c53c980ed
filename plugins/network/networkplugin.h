// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

/// The machine's network interfaces: links, addresses and traffic.
class NetworkPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    NetworkPlugin();

    QWidget *createWindow() override;
    /// Spans two rows of the page.
    QWidget *iconWidget() override;
    QWidget *statusWidget() override;

private:
    QPointer<QWidget> icon;
    QPointer<QWidget> status;
};
