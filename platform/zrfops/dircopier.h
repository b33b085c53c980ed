// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

#include <memory>

/// Copies directories to a removable drive with rsync, and waits until the drive has the data.
///
/// Made for FAT: neither owners nor modes, times that may be two seconds off; links, devices and sockets are left out. A
/// file has its final name when it is whole. What the destination holds already and is not in the sources stays. One copy at
/// a time. GUI thread only, nothing here blocks; all signals come from the event loop, except after cancel().
class DirCopier : public QObject {
    Q_OBJECT

public:
    explicit DirCopier(QObject *parent = nullptr);
    /// Ends a running copy and waits, up to two seconds, until its processes are gone.
    ~DirCopier() override;

    /// Begins to copy each of `sources` (paths of directories) into the existing directory `destination`. A source that
    /// ends in a slash gives its contents, another one becomes a directory there. While a copy is running the request is
    /// refused with rsyncErrorHappened(), and the running copy goes on.
    void copyDir(QStringList &sources, QString destination);
    bool isCopying() const;

public slots:
    /// Ends a running copy: cmdFinished() comes before this returns, with `QProcess::CrashExit`. What was copied whole
    /// stays.
    void cancel();

signals:
    /// `curCount` of `maxCount` are still to do, in hundredths of an entry (file or directory). 0 is told when the drive
    /// has all the data, and not before.
    void setProgress(int curCount, int maxCount);
    /// `errorCode` is rsync's exit code (rsync manual, "EXIT VALUES"), 11 also when the drive does not take the data in the
    /// end, 20 when a process was killed; -1: rsync could not be started, -2: a copy is running already. `errorDesc` is
    /// for the user. cmdFinished() follows, except for -2.
    void rsyncErrorHappened(int errorCode, const QString &errorDesc);
    /// The copy is over, and when `exitCode` is 0 all data is on the drive. Exactly once for every copy that was begun.
    void cmdFinished(int exitCode, QProcess::ExitStatus exitStatus);

private:
    struct Copy;

    void run(const QString &program, const QStringList &arguments,
             void (DirCopier::*ended)(int, QProcess::ExitStatus));
    void readProgress();
    void copied(int exitCode, QProcess::ExitStatus exitStatus);
    void flushed(int exitCode, QProcess::ExitStatus exitStatus);
    void couldNotStart();
    void dropProcess();
    void refuse();
    void failLater(int code, const QString &detail);
    void tellError(int code, const QString &detail);
    void finish(int exitCode, QProcess::ExitStatus exitStatus);

    /// The running copy, or null.
    std::unique_ptr<Copy> copy;
};
