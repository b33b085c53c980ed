// SPDX-License-Identifier: GPL-3.0-or-later
#include "firstframe.h"

#include "monotonicclock.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QSet>
#include <QTimer>
#include <QWidget>

#include <cstdio>
#include <unistd.h>

namespace {

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

/// Of which class of Qt's a widget is; what inherits QAbstractButton is a button like any other.
QByteArray plainClassOf(const QWidget *widget) {
    const QMetaObject *plain = widget->metaObject();
    while (*plain->className() != 'Q')
        plain = plain->superClass();
    return plain == &QAbstractButton::staticMetaObject ? "QPushButton" : plain->className();
}

void printWidgets() {
    for (const QWidget *const widget : QApplication::allWidgets()) {
        QByteArray path;
        for (const QWidget *each = widget; each; each = each->parentWidget())
            path.prepend('/' + plainClassOf(each));
        std::printf("%s %s\n", widget->isVisible() ? "shown" : "hidden", path.constData());
    }
}

void printLibraries() {
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly))
        return;
    QSet<QByteArray> libraries;
    for (const QByteArray &line : maps.readAll().split('\n')) {
        const QByteArray path = line.mid(line.indexOf('/'));
        if (line.contains('/') && path.contains(".so"))
            libraries.insert(path);
    }
    for (const QByteArray &library : libraries)
        std::printf("opened %s\n", library.constData());
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
    if (qEnvironmentVariableIsSet("ZR_BENCH_CONTENTS")) {
        printWidgets();
        printLibraries();
    }
    std::fflush(stdout);
    ::_exit(0);
}
