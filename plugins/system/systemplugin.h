// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

#include <memory>

class SystemKeeper;
class SystemReader;

/// The machine itself: what it is, how busy and how full it is; saved as a report on request.
class SystemPlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    SystemPlugin();

    QWidget *createWindow() override;
    QWidget *iconWidget() override;
    QWidget *statusWidget() override;
    void showWindow() override;

private:
    std::shared_ptr<SystemReader> reader;
    SystemKeeper *systemKeeper;
    QPointer<QWidget> icon;
    QPointer<QWidget> status;
};
