// SPDX-License-Identifier: GPL-3.0-or-later
#include "firstframe.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QTimer>

#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

qint64 monotonicNs() {
    timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/// The figure in kB behind `name` in the kernel's summary of this process's memory.
qint64 memoryKb(const QByteArray &name) {
    QFile summary(QStringLiteral("/proc/self/smaps_rollup"));
    if (!summary.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : summary.readAll().split('\n')) {
        if (line.startsWith(name + ':'))
            return line.simplified().split(' ').value(1).toLongLong();
    }
    return 0;
}

} // namespace

FirstFrame::FirstFrame(QObject *parent) : QObject(parent) {
    QCoreApplication::instance()->installEventFilter(this);
}

bool FirstFrame::eventFilter(QObject *object, QEvent *event) {
    if (event->type() == QEvent::Paint) {
        QCoreApplication::instance()->removeEventFilter(this);
        // The frame is complete when the paint event that began it is over.
        QTimer::singleShot(0, this, &FirstFrame::report);
    }
    return QObject::eventFilter(object, event);
}

void FirstFrame::report() {
    const qint64 elapsed = monotonicNs() - qgetenv("ZR_BENCH_START_NS").toLongLong();
    std::printf("%lld %lld %lld\n", elapsed / 1000, memoryKb("Rss"), memoryKb("Pss"));
    std::fflush(stdout);
    ::_exit(0);
}
