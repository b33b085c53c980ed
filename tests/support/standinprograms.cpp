// SPDX-License-Identifier: GPL-3.0-or-later
#include "standinprograms.h"

#include <QFile>

StandInPrograms::StandInPrograms() : originalPath(qgetenv("PATH")) {
    qputenv("PATH", directory.path().toLocal8Bit() + ':' + originalPath);
}

StandInPrograms::~StandInPrograms() {
    qputenv("PATH", originalPath);
}

void StandInPrograms::put(const QString &program, const QByteArray &script) {
    QFile file(directory.filePath(program));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("no stand-in for %s", qPrintable(program));
    file.write("#!/bin/sh\n" + script + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray StandInPrograms::log(const QString &program) const {
    QFile file(directory.filePath(program + QStringLiteral(".log")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void StandInPrograms::hideAll() {
    qputenv("PATH", directory.path().toLocal8Bit());
}
