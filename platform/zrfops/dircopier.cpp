// SPDX-License-Identifier: GPL-3.0-or-later
#include "dircopier.h"

#include "copycommands.h"
#include "copyerror.h"
#include "copyprocess.h"
#include "rsyncprogress.h"

#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QTimer>

#include <cerrno>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto timeToHearOfARemoval = 1500ms;

void startDetached(const CopyCommands::Command &command) {
    QProcess::startDetached(command.program, command.arguments);
}

} // namespace

/// The copy under way. Calls that are queued for it go with it.
struct DirCopier::Copy : public QObject {
    QStringList sources;
    QString destination;
    /// Null before the first one and between two of them.
    CopyProcess *process = nullptr;
    RsyncProgress progress;
    /// How rsync ended; the drive is flushed whatever it is.
    int exitCode = 0;
    QProcess::ExitStatus exitStatus = QProcess::NormalExit;
    bool waitsForCleaner = false;
};

DirCopier::DirCopier(QObject *parent) : QObject(parent) {}

DirCopier::~DirCopier() {
    if (cleaner)
        endAndDelete(cleaner);
    if (copy && copy->process && endAndDelete(copy->process))
        startDetached(CopyCommands::cleanUp(copy->destination));
}

bool DirCopier::endAndDelete(CopyProcess *process) {
    process->disconnect(this);
    // One that hangs in the kernel cannot be waited for: its object is left to the end of the program.
    if (!process->endAndWait())
        return false;
    delete process;
    return true;
}

bool DirCopier::isCopying() const {
    return copy != nullptr;
}

void DirCopier::copyDir(QStringList &sources, const QString &destination) {
    if (copy) {
        QMetaObject::invokeMethod(this, &DirCopier::refuse, Qt::QueuedConnection);
        return;
    }
    copy = std::make_unique<Copy>();
    copy->sources = sources;
    copy->destination = destination;
    if (destination.isEmpty() || sources.isEmpty() || sources.contains(QString())) {
        QMetaObject::invokeMethod(
            copy.get(), [this] { fail(CopyError::FileSelection, QProcess::NormalExit, QString()); },
            Qt::QueuedConnection);
        return;
    }
    // The directory that is being taken away has the name of the one that is to be made.
    copy->waitsForCleaner = cleaner != nullptr;
    if (!copy->waitsForCleaner)
        prepare();
}

void DirCopier::prepare() {
    run(CopyCommands::prepare(copy->destination), &DirCopier::prepared);
}

void DirCopier::refuse() {
    emit rsyncErrorHappened(CopyError::Busy, CopyError::description(CopyError::Busy, QString()));
}

void DirCopier::run(const CopyCommands::Command &command, Handler ended) {
    auto *const process = new CopyProcess(command);
    copy->process = process;
    connect(process, &QProcess::readyReadStandardOutput, this, &DirCopier::readProgress);
    connect(process, &QProcess::finished, this, ended);
    // From the event loop also when the program is not there at all.
    connect(
        process, &QProcess::errorOccurred, copy.get(),
        [this, process](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart && copy->process == process)
                couldNotStart();
        },
        Qt::QueuedConnection);
    process->start();
}

void DirCopier::couldNotStart() {
    const QString reason = copy->process->program() + ": "_L1 + copy->process->errorString();
    dropProcess();
    fail(CopyError::NotStarted, QProcess::NormalExit, reason);
}

QString DirCopier::dropProcess() {
    CopyProcess *const process = std::exchange(copy->process, nullptr);
    process->disconnect(this);
    process->deleteLater();
    return process->firstMessage();
}

void DirCopier::prepared(int exitCode, QProcess::ExitStatus exitStatus) {
    const QString message = dropProcess();
    if (exitStatus != QProcess::NormalExit || exitCode != 0) {
        fail(QFileInfo(copy->destination).isDir() ? CopyError::FileAccess : CopyError::FileSelection,
             exitStatus, message);
        return;
    }
    // rsync would take it away without a word.
    if (const QString obstacle = obstacleInTheWay(); !obstacle.isEmpty()) {
        fail(CopyError::FileSelection, QProcess::NormalExit, obstacle);
        return;
    }
    run(CopyCommands::copy(copy->sources, copy->destination), &DirCopier::copied);
}

QString DirCopier::obstacleInTheWay() const {
    for (const QString &source : std::as_const(copy->sources)) {
        const QString name =
            source.endsWith(u'/') ? QString() : QFileInfo(QDir::cleanPath(source)).fileName();
        const QFileInfo target(copy->destination + u'/' + name);
        if (target.isSymLink() || (target.exists() && !target.isDir()))
            return target.filePath() + ": "_L1 + qt_error_string(ENOTDIR);
    }
    return {};
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
    const QPointer<Copy> finished = copy.get();
    readProgress();
    // A listener may have cancelled the copy, and begun another.
    if (!finished)
        return;
    copy->exitStatus = exitStatus;
    copy->exitCode = exitStatus == QProcess::NormalExit ? exitCode : CopyError::Interrupted;
    const QString message = dropProcess();
    if (copy->exitCode != 0)
        emit rsyncErrorHappened(copy->exitCode, CopyError::description(copy->exitCode, message));
    // What was copied before an error is worth keeping as well.
    if (finished)
        run(CopyCommands::flush(copy->destination), &DirCopier::flushed);
}

void DirCopier::flushed(int exitCode, QProcess::ExitStatus exitStatus) {
    const QPointer<Copy> finished = copy.get();
    const QString message = dropProcess();
    if (copy->exitCode != 0) {
        finishLater(copy->exitCode, copy->exitStatus);
    } else if (exitStatus != QProcess::NormalExit || exitCode != 0) {
        fail(CopyError::FileAccess, exitStatus, message);
    } else {
        emit setProgress(0, copy->progress.total());
        if (finished)
            finish(0, QProcess::NormalExit);
    }
}

void DirCopier::fail(int code, QProcess::ExitStatus exitStatus, const QString &detail) {
    const QPointer<Copy> failed = copy.get();
    emit rsyncErrorHappened(code, CopyError::description(code, detail));
    if (failed)
        finishLater(code, exitStatus);
}

void DirCopier::finishLater(int exitCode, QProcess::ExitStatus exitStatus) {
    QTimer::singleShot(timeToHearOfARemoval, copy.get(),
                       [this, exitCode, exitStatus] { finish(exitCode, exitStatus); });
}

void DirCopier::finish(int exitCode, QProcess::ExitStatus exitStatus) {
    copy.reset();
    emit cmdFinished(exitCode, exitStatus);
}

void DirCopier::cancel() {
    if (!copy)
        return;
    if (CopyProcess *const process = std::exchange(copy->process, nullptr)) {
        process->disconnect(this);
        connect(process, &QProcess::finished, this,
                [this, destination = copy->destination] { cleanUpUnlessCopying(destination); });
        process->abandon();
    }
    finish(CopyError::Interrupted, QProcess::CrashExit);
}

void DirCopier::cleanUpUnlessCopying(const QString &destination) {
    // Another copy to the same place has emptied the directory already, and uses it.
    if (copy || cleaner)
        return;
    cleaner = new CopyProcess(CopyCommands::cleanUp(destination));
    connect(cleaner, &QProcess::finished, this, &DirCopier::cleaned);
    connect(
        cleaner, &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart)
                cleaned();
        },
        Qt::QueuedConnection);
    cleaner->start();
}

void DirCopier::cleaned() {
    std::exchange(cleaner, nullptr)->deleteLater();
    if (copy && std::exchange(copy->waitsForCleaner, false))
        prepare();
}
