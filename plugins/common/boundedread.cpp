// SPDX-License-Identifier: GPL-3.0-or-later
#include "boundedread.h"

#include <QFile>

QByteArray boundedRead(const QString &file, qint64 mostBytes) {
    QFile source(file);
    return source.open(QIODevice::ReadOnly | QIODevice::Unbuffered) ? source.read(mostBytes) : QByteArray();
}
