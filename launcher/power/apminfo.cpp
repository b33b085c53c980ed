// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/apminfo.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

int hexadecimal(QString column) {
    constexpr int base = 16;
    return column.remove("0x"_L1).toInt(nullptr, base);
}

} // namespace

ApmInfo apmInfo(const QString &line) {
    const QStringList columns = line.split(u' ');
    const QStringList bios = columns.value(1).split(u'.');
    ApmInfo info;
    info.driverVersion = columns.value(0);
    info.biosMajor = bios.value(0).toInt();
    info.biosMinor = bios.value(1).toInt();
    info.apmFlags = hexadecimal(columns.value(2));
    info.acLineStatus = hexadecimal(columns.value(3));
    info.batteryStatus = hexadecimal(columns.value(4));
    info.batteryFlag = hexadecimal(columns.value(5));
    info.percentage = columns.value(6).remove(u'%').toInt();
    info.time = columns.value(7).toInt();
    info.units = columns.value(8);
    return info;
}
