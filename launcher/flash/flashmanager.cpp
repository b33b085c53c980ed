// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashmanager.h"

#include "flash/flashdialog.h"
#include "flash/flashspy.h"
#include "hostpath.h"
#include "zrlauncherconfig.h"

#include <dircopier.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Nothing, which the copier refuses, where a partition's name leads out of the directory for drives: anybody on the bus can
/// announce one.
QString driveToCopyTo(const QString &mountDirectory) {
    static const QRegularExpression drive(u"\\A/media/[^/]+\\z"_s);
    return drive.match(mountDirectory).hasMatch() ? hostPath(mountDirectory) : QString();
}

} // namespace

FlashManager::FlashManager(QWidget *parent)
    : QObject(parent),
      spy(new FlashSpy(this)),
      dialog(new FlashDialog(parent)),
      copier(std::make_unique<DirCopier>()) {
    connect(spy, SIGNAL(flashRemoved()), this, SLOT(flashRemoved()));
    connect(spy, SIGNAL(flashInserted(QString)), dialog, SLOT(showDialog()));
    connect(spy, SIGNAL(mountFailed(QString)), dialog, SLOT(showWarning(QString)));
    connect(copier.get(), SIGNAL(setProgress(int, int)), dialog, SLOT(setProgress(int, int)));
    connect(copier.get(), SIGNAL(rsyncErrorHappened(int, QString)), this,
            SLOT(dirCopierFailed(int, QString)));
    connect(copier.get(), SIGNAL(cmdFinished(int, QProcess::ExitStatus)), dialog, SLOT(closeGracefully()));
    connect(dialog, SIGNAL(exportFiles()), this, SLOT(exportFiles()));
}

FlashManager::~FlashManager() = default;

void FlashManager::exportFiles() {
    QStringList sources{QDir::homePath() + u'/' + ZrLauncherConfig(u"paths"_s, u"main"_s).string()};
    exporting = true;
    copier->copyDir(sources, driveToCopyTo(spy->flashDir()));
}

void FlashManager::flashRemoved() {
    if (!dialog->isVisible())
        return;
    if (exporting) {
        dialog->showWarning(tr("Error: ") + u'\n' + tr("USB mass-storage device is plugged out"));
        exporting = false;
    }
    dialog->done(QDialog::Rejected);
    // Only now: the dialog takes the end of the copy for a success while it is open.
    copier->cancel();
}

void FlashManager::dirCopierFailed(int errorCode, const QString &errorDesc) {
    std::cerr << "Export to flash: error " << errorCode << ": " << qPrintable(errorDesc) << std::endl;
    // The whole mount directory stands behind "/dev/"; a device has such a name where it was linked there on purpose.
    if (QFile::exists(hostPath("/dev/"_L1 + spy->flashName())))
        dialog->showWarning(tr("Error: ") + u'\n' + errorDesc);
}
