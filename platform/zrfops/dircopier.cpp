// SPDX-License-Identifier: GPL-3.0-or-later
#include "dircopier.h"

#include "copyerror.h"
#include "copyprocess.h"
#include "rsyncarguments.h"
#include "rsyncprogress.h"

#include <QDir>

#include <cerrno>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr mode_t ownerOnly = 0700;

void removeIncompleteFiles(const QString &destination) {
    QDir(destination + u'/' + RsyncArguments::incompleteDirectory()).removeRecursively();
}

/// rsync writes in there; it makes no such directory by itself. Also tells a drive that is not there, or cannot be written.
int makeIncompleteDirectory(const QString &destination) {
    removeIncompleteFiles(destination);
    const QString directory = destination + u'/' + RsyncArguments::incompleteDirectory();
    return ::mkdir(QFile::encodeName(directory).constData(), ownerOnly) == 0 ? 0 : errno;
}

} // namespace

/// The copy under way. Calls that are queued for it go with it.
struct DirCopier::Copy : public QObject {
    explicit Copy(QString mountPoint) : destination(std::move(mountPoint)) {}

    QString destination;
    /// Null before the first one and between two of them.
    CopyProcess *process = nullptr;
    RsyncProgress progress;
    /// How rsync ended; the drive is flushed whatever it is.
    int exitCode = 0;
    QProcess::ExitStatus exitStatus = QProcess::NormalExit;
};

DirCopier::DirCopier(QObject *parent) : QObject(parent) {}

DirCopier::~DirCopier() {
    if (!copy || !copy->process)
        return;
    copy->process->disconnect(this);
    copy->process->endAndWait();
    delete copy->process;
    removeIncompleteFiles(copy->destination);
}

bool DirCopier::isCopying() const {
    return copy != nullptr;
}

void DirCopier::copyDir(QStringList &sources, QString destination) {
    if (copy) {
        QMetaObject::invokeMethod(this, &DirCopier::refuse, Qt::QueuedConnection);
        return;
    }
    copy = std::make_unique<Copy>(destination);
    if (destination.isEmpty() || sources.isEmpty() || sources.contains(QString())) {
        failLater(CopyError::FileSelection, QString());
        return;
    }
    if (const int error = makeIncompleteDirectory(destination)) {
        failLater(error == ENOENT || error == ENOTDIR ? CopyError::FileSelection : CopyError::FileAccess,
                  destination + ": "_L1 + qt_error_string(error));
        return;
    }
    run(u"rsync"_s, RsyncArguments::copying(sources, destination), &DirCopier::copied);
}

void DirCopier::refuse() {
    emit rsyncErrorHappened(CopyError::Busy, CopyError::description(CopyError::Busy, QString()));
}

void DirCopier::failLater(int code, const QString &detail) {
    QMetaObject::invokeMethod(
        copy.get(),
        [this, code, detail] {
            tellError(code, detail);
            finish(code, QProcess::NormalExit);
        },
        Qt::QueuedConnection);
}

void DirCopier::tellError(int code, const QString &detail) {
    emit rsyncErrorHappened(code, CopyError::description(code, detail));
}

void DirCopier::run(const QString &program, const QStringList &arguments,
                    void (DirCopier::*ended)(int, QProcess::ExitStatus)) {
    copy->process = new CopyProcess(program, arguments);
    connect(copy->process, &QProcess::readyReadStandardOutput, this, &DirCopier::readProgress);
    connect(copy->process, &QProcess::finished, this, ended);
    // From the event loop also when the program is not there at all.
    connect(
        copy->process, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                couldNotStart();
        },
        Qt::QueuedConnection);
    copy->process->start();
}

void DirCopier::couldNotStart() {
    if (!copy || !copy->process)
        return;
    const QString reason = copy->process->program() + ": "_L1 + copy->process->errorString();
    dropProcess();
    tellError(CopyError::NotStarted, reason);
    finish(CopyError::NotStarted, QProcess::NormalExit);
}

void DirCopier::dropProcess() {
    copy->process->disconnect(this);
    std::exchange(copy->process, nullptr)->deleteLater();
}

void DirCopier::readProgress() {
    RsyncProgress &progress = copy->progress;
    bool wasTold = false;
    for (const QByteArray &line : copy->process->takeLines())
        wasTold |= progress.read(line);
    // The last count is told when the drive has everything.
    if (wasTold)
        emit setProgress(qMax(1, progress.left()), progress.total());
}

void DirCopier::copied(int exitCode, QProcess::ExitStatus exitStatus) {
    readProgress();
    copy->exitStatus = exitStatus;
    copy->exitCode = exitStatus == QProcess::NormalExit ? exitCode : CopyError::Interrupted;
    const QString message = copy->process->firstMessage();
    dropProcess();
    removeIncompleteFiles(copy->destination);
    if (copy->exitCode != 0)
        tellError(copy->exitCode, message);
    // What was copied before an error is worth keeping as well. A listener may have cancelled the copy.
    if (copy)
        run(u"sync"_s, {u"--file-system"_s, copy->destination}, &DirCopier::flushed);
}

void DirCopier::flushed(int exitCode, QProcess::ExitStatus exitStatus) {
    const bool isFlushed = exitStatus == QProcess::NormalExit && exitCode == 0;
    const QString message = copy->process->firstMessage();
    dropProcess();
    if (copy->exitCode != 0) {
        finish(copy->exitCode, copy->exitStatus);
    } else if (!isFlushed) {
        tellError(CopyError::FileAccess, message);
        finish(CopyError::FileAccess, exitStatus);
    } else {
        emit setProgress(0, copy->progress.total());
        finish(0, QProcess::NormalExit);
    }
}

void DirCopier::finish(int exitCode, QProcess::ExitStatus exitStatus) {
    // A listener may have cancelled the copy, or begun another.
    if (!copy)
        return;
    copy.reset();
    emit cmdFinished(exitCode, exitStatus);
}

void DirCopier::cancel() {
    if (!copy)
        return;
    if (CopyProcess *const process = std::exchange(copy->process, nullptr)) {
        process->disconnect(this);
        process->abandon();
    }
    finish(CopyError::Interrupted, QProcess::CrashExit);
}
