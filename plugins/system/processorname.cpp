// SPDX-License-Identifier: GPL-3.0-or-later
#include "processorname.h"

#include <QHash>
#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

QString tidied(QString name) {
    const QRegularExpression noise(u"\\((R|TM|tm)\\)|\\bCPU\\b|@.*$"_s);
    return name.remove(noise).simplified();
}

} // namespace

QString processorNameIn(QByteArrayView cpuinfo) {
    QHash<QByteArray, QString> values;
    for (const QByteArray &line : cpuinfo.toByteArray().split('\n')) {
        const qsizetype colon = line.indexOf(':');
        const QByteArray key = line.left(colon).trimmed();
        // The first processor stands for all.
        if (colon > 0 && !values.contains(key))
            values.insert(key, QString::fromUtf8(line.mid(colon + 1)).simplified());
    }
    // x86 and 32-bit ARM, older ARM, MIPS, PowerPC, ARM boards.
    for (const char *const key : {"model name", "Processor", "cpu model", "cpu", "Hardware"}) {
        if (QString name = tidied(values.value(key)); !name.isEmpty())
            return name;
    }
    return {};
}
