// SPDX-License-Identifier: GPL-3.0-or-later
#include "troubleplugin.h"

#include <icontile.h>
#include <pluginwindow.h>

#include <QFile>
#include <QThread>

TroublePlugin::TroublePlugin() {
    auto *const tile = new IconTile(QIcon(), QStringLiteral("Trouble"));
    icon = own(tile);
    connect(tile, &QAbstractButton::clicked, this, &TroublePlugin::hang);
    if (QFile::exists(QStringLiteral("/run/zr-session/crash")))
        crash();
}

QWidget *TroublePlugin::createWindow() {
    return new PluginWindow;
}

QWidget *TroublePlugin::iconWidget() {
    return icon;
}

void TroublePlugin::hang() {
    while (true)
        QThread::sleep(1);
}

void TroublePlugin::crash() {
    volatile int *const nowhere = nullptr;
    *nowhere = 1;
}
