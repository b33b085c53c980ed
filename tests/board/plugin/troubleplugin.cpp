// SPDX-License-Identifier: GPL-3.0-or-later
#include "troubleplugin.h"

#include <icontile.h>
#include <pluginwindow.h>

#include <QFile>
#include <QKeyEvent>
#include <QKeySequence>
#include <QThread>

#include <thread>

namespace {

QString fileOf(const QString &name) {
    return QStringLiteral("/run/zr-session/") + name;
}

bool isWanted(const QString &trouble) {
    return QFile::exists(fileOf(trouble));
}

} // namespace

TroublePlugin::TroublePlugin() {
    auto *const tile = new IconTile(QIcon(), QStringLiteral("Trouble"));
    icon = own(tile);
    icon->installEventFilter(this);
    connect(tile, &QAbstractButton::clicked, this, &TroublePlugin::makeTrouble);
    if (isWanted(QStringLiteral("crash")))
        crash();
}

QWidget *TroublePlugin::createWindow() {
    return new PluginWindow;
}

QWidget *TroublePlugin::iconWidget() {
    return icon;
}

bool TroublePlugin::eventFilter(QObject *object, QEvent *event) {
    // Only now it is in a window.
    if (object == icon) {
        if (event->type() == QEvent::Show)
            icon->window()->installEventFilter(this);
    } else if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease) {
        note(static_cast<QKeyEvent *>(event));
    }
    return false;
}

void TroublePlugin::note(const QKeyEvent *key) const {
    QFile keys(fileOf(QStringLiteral("keys")));
    if (!keys.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    const char *const happened = key->type() == QEvent::KeyPress ? " pressed\n" : " released\n";
    keys.write(QKeySequence(key->key()).toString().toUtf8() + happened);
}

void TroublePlugin::makeTrouble() {
    // Beside the window, which goes on with its signs of life: it may take longer than they may.
    if (isWanted(QStringLiteral("eat")))
        std::thread([this] { takeAllMemory(); }).detach();
    else
        hang();
}

void TroublePlugin::takeAllMemory() {
    constexpr std::size_t bite = 16'000'000;
    while (true)
        hoard.emplace_back(bite, 'x');
}

void TroublePlugin::hang() {
    while (true)
        QThread::sleep(1);
}

void TroublePlugin::crash() {
    volatile int *const nowhere = nullptr;
    *nowhere = 1;
}
