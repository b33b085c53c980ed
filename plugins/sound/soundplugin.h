// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

class VolumePanel;

/// Loudspeaker and microphone: a press on the icon opens the launcher's volume panel beside it. It has no window.
class SoundPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    SoundPlugin();

    QWidget *iconWidget() override;

public slots:
    /// Made anew each time, so that it shows what the mixer says now.
    void showWindow() override;

private:
    QPointer<QWidget> icon;
    QPointer<VolumePanel> panel;
};
