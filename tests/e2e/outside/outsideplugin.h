// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

class QAbstractButton;

/// Uses every installed target once: an icon of the widget library, a value of the configuration, and the
/// launcher's own window.
class OutsidePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    OutsidePlugin();

    QWidget *createWindow() override;
    QWidget *iconWidget() override;

private:
    QAbstractButton *icon;
};
