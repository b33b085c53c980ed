// SPDX-License-Identifier: GPL-3.0-or-later
#include "faultyplugin.h"

#include <nowhere.h>

#include <QPushButton>
#include <QThread>
#include <QTimer>

#include <csignal>
#include <cstdlib>
#include <memory>
#include <sys/resource.h>
#include <vector>

namespace {

enum FaultPlace {
    InConstructor,
    InIconWidget,
    InThread,
    OnClick,
    InLauncher,
    OnPress,
    Overflow,
    Abort,
    InTrace,
    Kill,
    KillOnPress,
    Memory,
    MemoryOnPress
};

constexpr FaultPlace place = FAULT_PLACE;

void faultInThread() {
    const std::unique_ptr<QThread> thread(QThread::create(writeNowhere));
    thread->start();
    thread->wait();
}

void faultInTheTrace() {
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) { writeNowhere(); });
    writeNowhere();
}

/// Goes deeper than any stack.
int overflow(int depth) {
    volatile char room[4096] = {};
    return depth < 0 ? room[0] : overflow(depth + 1) + room[0];
}

void killOurselves() {
    ::raise(SIGKILL);
}

/// Takes all the memory that the process may have. Not on a machine that sets no limit.
void eatMemory() {
    rlimit limit{};
    if (::getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        std::_Exit(EXIT_FAILURE);
    std::vector<std::unique_ptr<char[]>> pieces;
    for (;;)
        pieces.push_back(std::make_unique<char[]>(std::size_t(1) << 20));
}

} // namespace

FaultyPlugin::FaultyPlugin() : icon(own(new QPushButton(QStringLiteral("faulty")))) {
    if (place == InConstructor)
        writeNowhere();
    if (place == InThread)
        faultInThread();
    if (place == Overflow)
        overflow(0);
    if (place == Abort)
        std::abort();
    if (place == Kill)
        killOurselves();
    if (place == Memory)
        eatMemory();
    connect(icon, &QPushButton::clicked, this, &FaultyPlugin::useIcon);
    // As soon as the launcher is up.
    if (place != OnPress && place != KillOnPress && place != MemoryOnPress)
        QTimer::singleShot(0, icon, &QPushButton::click);
}

QWidget *FaultyPlugin::iconWidget() {
    if (place == InIconWidget)
        writeNowhere();
    if (place == InTrace)
        faultInTheTrace();
    return icon;
}

void FaultyPlugin::useIcon() {
    if (place == OnClick || place == OnPress)
        writeNowhere();
    if (place == KillOnPress)
        killOurselves();
    if (place == MemoryOnPress)
        eatMemory();
    if (place == InLauncher)
        emit setCurrentWidget(reinterpret_cast<QWidget *>(addressOfNothing));
}
