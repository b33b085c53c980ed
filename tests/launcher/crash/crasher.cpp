// SPDX-License-Identifier: GPL-3.0-or-later
// Crashes under the launcher's handler in the way that its argument names, each worse than a plain fault.
#include "crashhandler.h"

#include <nowhere.h>

#include <QMap>
#include <QMutex>
#include <QThread>

#include <cstdlib>
#include <memory>
#include <unistd.h>
#include <vector>

namespace {

QMutex messageMutex;

void faultInMessage(QtMsgType, const QMessageLogContext &, const QString &) {
    writeNowhere();
}

void abortInMessage(QtMsgType, const QMessageLogContext &, const QString &) {
    std::abort();
}

void waitForMutex(QtMsgType, const QMessageLogContext &, const QString &) {
    const QMutexLocker locker(&messageMutex);
}

void waitForever() {
    for (;;)
        ::pause();
}

void faultInTheTrace() {
    qInstallMessageHandler(faultInMessage);
    writeNowhere();
}

void abortInTheTrace() {
    qInstallMessageHandler(abortInMessage);
    writeNowhere();
}

void faultUnderALock() {
    qInstallMessageHandler(waitForMutex);
    const QMutexLocker locker(&messageMutex);
    writeNowhere();
}

void faultAgainAtTheExit() {
    std::atexit(writeNowhere);
    writeNowhere();
}

void hangAtTheExit() {
    std::atexit(waitForever);
    writeNowhere();
}

void faultInManyThreads() {
    std::vector<std::unique_ptr<QThread>> threads(8);
    for (std::unique_ptr<QThread> &thread : threads) {
        thread.reset(QThread::create(writeNowhere));
        thread->start();
    }
    waitForever();
}

} // namespace

int main(int argc, char *argv[]) {
    installCrashHandler();
    const QMap<QByteArray, void (*)()> ways = {
        {"plain", writeNowhere},
        {"in the trace", faultInTheTrace},
        {"abort in the trace", abortInTheTrace},
        {"under a lock", faultUnderALock},
        {"at the exit", faultAgainAtTheExit},
        {"hang at the exit", hangAtTheExit},
        {"many threads", faultInManyThreads},
    };
    if (argc == 2 && ways.contains(argv[1]))
        ways[argv[1]]();
    return 0;
}
