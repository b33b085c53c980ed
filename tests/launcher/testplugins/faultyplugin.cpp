// SPDX-License-Identifier: GPL-3.0-or-later
#include "faultyplugin.h"

#include <nowhere.h>

#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <memory>

namespace {

enum FaultPlace { InConstructor, InIconWidget, InThread, OnClick, InLauncher };

constexpr FaultPlace place = FAULT_PLACE;

void faultInThread() {
    const std::unique_ptr<QThread> thread(QThread::create(writeNowhere));
    thread->start();
    thread->wait();
}

} // namespace

FaultyPlugin::FaultyPlugin() : icon(own(new QPushButton(QStringLiteral("faulty")))) {
    if (place == InConstructor)
        writeNowhere();
    if (place == InThread)
        faultInThread();
    connect(icon, &QPushButton::clicked, this, &FaultyPlugin::useIcon);
    // As soon as the launcher is up.
    QTimer::singleShot(0, icon, &QPushButton::click);
}

QWidget *FaultyPlugin::iconWidget() {
    if (place == InIconWidget)
        writeNowhere();
    return icon;
}

void FaultyPlugin::useIcon() {
    if (place == OnClick)
        writeNowhere();
    if (place == InLauncher)
        emit setCurrentWidget(reinterpret_cast<QWidget *>(addressOfNothing));
}
