// SPDX-License-Identifier: GPL-3.0-or-later
#include "processuse.h"

#include <QDir>
#include <QFile>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray contents(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ProcessUse useOf(const QString &process) {
    ProcessUse use;
    const QString tasks = u"/proc/%1/task"_s.arg(process);
    for (const QString &thread : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray &line : contents(tasks + u'/' + thread + "/status"_L1).split('\n')) {
            if (line.contains("ctxt_switches"))
                use.wakeUps += line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
        }
        use.processorNs += contents(tasks + u'/' + thread + "/schedstat"_L1).split(' ').value(0).toLongLong();
    }
    if (use.wakeUps == 0)
        qFatal("Nothing is known of process %s.", qPrintable(process));
    return use;
}
