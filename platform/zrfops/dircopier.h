// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

#include <memory>

class CopyProcess;
namespace CopyCommands {
struct Command;
}

/// Copies directories to a removable drive with rsync, and waits until the drive has the data.
///
/// Made for FAT: neither owners nor modes, times that may be two seconds off; links, devices, sockets and other file systems
/// are left out. A file has its final name when the drive has its data. What the destination holds already and is not in
/// the sources stays. One copy at a time. GUI thread only, nothing here blocks; all signals come from the event loop,
/// except after cancel().
class DirCopier : public QObject {
    Q_OBJECT

public:
    explicit DirCopier(QObject *parent = nullptr);
    /// Ends a running copy and waits, up to three seconds, until rsync is gone.
    ~DirCopier() override;

    /// Begins to copy each of `sources` (paths of directories) into the existing directory `destination`. A source that
    /// ends in a slash gives its contents, another one becomes a directory there. While a copy is running the request is
    /// refused with rsyncErrorHappened(), and the running copy goes on.
    void copyDir(QStringList &sources, const QString &destination);
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
    /// After an error it is told 1.5 seconds late: a drive that was pulled fails before anybody says that it was pulled.
    void cmdFinished(int exitCode, QProcess::ExitStatus exitStatus);

private:
    struct Copy;
    using Handler = void (DirCopier::*)(int, QProcess::ExitStatus);

    /// What stands on the drive under the name of a directory that is to be copied and is none.
    QString obstacleInTheWay() const;
    void run(const CopyCommands::Command &command, Handler ended);
    void prepare();
    void prepared(int exitCode, QProcess::ExitStatus exitStatus);
    void readProgress();
    void copied(int exitCode, QProcess::ExitStatus exitStatus);
    void flushed(int exitCode, QProcess::ExitStatus exitStatus);
    void couldNotStart();
    /// The running process is no more ours. What it said first.
    QString dropProcess();
    void refuse();
    void fail(int code, QProcess::ExitStatus exitStatus, const QString &detail);
    void finishLater(int exitCode, QProcess::ExitStatus exitStatus);
    void finish(int exitCode, QProcess::ExitStatus exitStatus);
    void cleanUpUnlessCopying(const QString &destination);
    void cleaned();
    /// Whether it is gone.
    bool endAndDelete(CopyProcess *process);

    /// The running copy, or null.
    std::unique_ptr<Copy> copy;
    /// Takes away what a cancelled copy has left; null when nothing does.
    CopyProcess *cleaner = nullptr;
};
