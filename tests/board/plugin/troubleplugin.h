// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <genericplugin.h>

#include <string>
#include <vector>

class QKeyEvent;

/// Crashes as soon as it is loaded while there is a file /run/zr-session/crash. When its icon is pressed it takes all
/// memory while there is a file /run/zr-session/eat, and hangs otherwise. It writes the keys that reach the window into
/// /run/zr-session/keys, a line each.
class TroublePlugin : public GenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID GenericPlugin_iid)

public:
    TroublePlugin();

    QWidget *createWindow() override;
    QWidget *iconWidget() override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void makeTrouble();
    // Functions of their own in a trace.
    [[gnu::noinline]] void hang();
    [[gnu::noinline]] void crash();
    [[gnu::noinline]] void takeAllMemory();
    void note(const QKeyEvent *key) const;

    QWidget *icon;
    std::vector<std::string> hoard;
};
