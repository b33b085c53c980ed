// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

class IconTile;

/// Night colours: a press on the icon switches the whole screen to the colours for the dark, another one
/// back. It has no window.
class NightPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    NightPlugin();

    QWidget *iconWidget() override;

public slots:
    /// Wears the other set of colours and keeps the choice.
    void showWindow() override;

private:
    QPointer<IconTile> icon;
};
