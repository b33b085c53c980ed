// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounthelper.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTimer>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int mostRuns = 8;
// mount(8): incorrect invocation or permissions; sudo that refuses ends with the same.
constexpr int notPermitted = 1;
constexpr int mountFailure = 32;

QString helperFile() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/" HELPER_FROM_PROGRAM ""_s);
}

int mountExitCode(const QProcess &process) {
    if (process.error() == QProcess::FailedToStart)
        return notPermitted;
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : mountFailure;
}

/// Runs that are under way when the service ends stay: the destructor of one that cannot be killed would wait for it.
QObject *undyingParent() {
    static auto *const parent = new QObject;
    return parent;
}

} // namespace

MountHelper::MountHelper(std::chrono::milliseconds mountLimit, QObject *parent)
    : QObject(parent), limit(mountLimit) {}

bool MountHelper::isLoaded() const {
    return busyPartitions.size() >= mostRuns;
}

void MountHelper::mount(const QString &partition) {
    QProcess *const run = newRun(u"mount"_s, partition,
                                 [this, partition](int exitCode) { emit mountEnded(partition, exitCode); });
    auto *const timer = new QTimer(run);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, this, [this, run, partition] {
        // Has no effect on a sudo that runs as root altogether; that one ends when mount(8) does.
        run->terminate();
        emit mountTimedOut(partition);
    });
    timer->start(limit);
    run->start();
}

void MountHelper::unmount(const QString &partition) {
    newRun(u"unmount"_s, partition, [this, partition](int /*exitCode*/) {
        emit unmountEnded(partition);
    })->start();
}

QProcess *MountHelper::newRun(const QString &verb, const QString &partition,
                              const std::function<void(int exitCode)> &ended) {
    auto *const run = new QProcess(undyingParent());
    run->setProgram(u"sudo"_s);
    run->setArguments({u"-n"_s, helperFile(), verb, partition});
    run->setProcessChannelMode(QProcess::ForwardedChannels);
    run->setStandardInputFile(QProcess::nullDevice());
    const auto end = [this, run, partition, ended] {
        busyPartitions.remove(partition);
        run->deleteLater();
        ended(mountExitCode(*run));
    };
    connect(run, &QProcess::finished, this, end);
    connect(run, &QProcess::errorOccurred, this, [run, end](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart)
            return;
        std::cerr << "zr-flash-service: cannot run sudo: " << qPrintable(run->errorString()) << std::endl;
        end();
    });
    busyPartitions.insert(partition);
    return run;
}
