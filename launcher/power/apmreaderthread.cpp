// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/apmreaderthread.h"

#include "hostpath.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int pollIntervalMs = 2000;
// The kernel's line has less than a hundred characters.
constexpr qint64 longestLine = 4096;

} // namespace

ApmReaderThread::ApmReaderThread(QObject *parent) : QThread(parent) {
    connect(&pollTimer, SIGNAL(timeout()), this, SLOT(parseApmInfo()));
    pollTimer.setInterval(pollIntervalMs);
}

ApmReaderThread::~ApmReaderThread() {
    quit();
    wait();
    // The thread sanitizer does not see what wait() waits for.
    const std::lock_guard ended(running);
}

void ApmReaderThread::run() {
    const std::lock_guard lock(running);
    // A timer can only be started by the thread that it lives in.
    QMetaObject::invokeMethod(&pollTimer, "start", Qt::QueuedConnection);
    exec();
}

void ApmReaderThread::parseApmInfo() {
    const QFileInfo info(hostPath(u"/proc/apm"_s));
    // Something that is no file might keep us waiting for ever.
    if (info.exists() && !info.isFile())
        return;
    if (info.exists())
        readLine();
    pollTimer.start();
}

void ApmReaderThread::readLine() {
    QFile file(hostPath(u"/proc/apm"_s));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QString line = QString::fromUtf8(file.readLine(longestLine)).trimmed();
    if (line == lastLine)
        return;
    lastLine = line;
    emit newApmData(apmInfo(line));
}
