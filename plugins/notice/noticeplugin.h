// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "leftoutnote.h"

#include <genericplugin.h>

/// Stands on a page in the place of a plug-in that was left out because it made the launcher crash.
class NoticePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    NoticePlugin();

    QWidget *createWindow() override;
    QWidget *iconWidget() override;

private:
    LeftOutNote note;
    QPointer<QWidget> icon;
};
