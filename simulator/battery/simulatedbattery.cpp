// SPDX-License-Identifier: GPL-3.0-or-later
#include "battery/simulatedbattery.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int fullPercentage = 100;
constexpr int lowPercentage = 20;
constexpr int criticalPercentage = 5;
constexpr int minutesForOnePercent = 3;

enum ApmStatus {
    High = 0,
    Low = 1,
    Critical = 2,
    ChargingStatus = 3,
    AbsentStatus = 4,
    UnknownStatus = 0xff
};

QString apmFile() {
    return qEnvironmentVariable("ZR_SYSROOT") + "/proc/apm"_L1;
}

} // namespace

SimulatedBattery SimulatedBattery::stored() {
    QFile file(apmFile());
    if (!file.open(QIODevice::ReadOnly))
        return {Discharging, fullPercentage};
    const QList<QByteArray> columns = file.readLine().trimmed().split(' ');
    constexpr int base = 16;
    const int percentage = columns.value(6).replace("%", "").toInt();
    switch (columns.value(4).mid(2).toInt(nullptr, base)) {
    case ChargingStatus:
        return {Charging, percentage};
    case AbsentStatus:
        return {Absent, percentage};
    case UnknownStatus:
        return {Unknown, percentage};
    default:
        return {Discharging, percentage};
    }
}

QString SimulatedBattery::store() const {
    // The real file is the kernel's.
    if (qEnvironmentVariableIsEmpty("ZR_SYSROOT"))
        return u"ZR_SYSROOT does not name the simulated instrument"_s;
    QDir().mkpath(QFileInfo(apmFile()).path());
    QSaveFile file(apmFile());
    if (!file.open(QIODevice::WriteOnly) || file.write(line()) < 0 || !file.commit())
        return u"cannot write %1: %2"_s.arg(file.fileName(), file.errorString());
    return {};
}

void SimulatedBattery::step() {
    if (currentPercentage < 0)
        return;
    if (currentState == Charging)
        currentPercentage = qMin(fullPercentage, currentPercentage + 1);
    else if (currentState == Discharging)
        currentPercentage = qMax(0, currentPercentage - 1);
}

int SimulatedBattery::apmStatus() const {
    switch (currentState) {
    case Charging:
        return ChargingStatus;
    case Absent:
        return AbsentStatus;
    case Unknown:
        return UnknownStatus;
    case Discharging:
        break;
    }
    if (currentPercentage <= criticalPercentage)
        return Critical;
    return currentPercentage <= lowPercentage ? Low : High;
}

QByteArray SimulatedBattery::line() const {
    const bool isOnLine = currentState == Charging || currentState == Absent;
    const bool hasTime = currentState == Discharging && currentPercentage >= 0;
    return QString::asprintf("1.16 1.2 0x03 0x%02x 0x%02x 0x%02x %d%% %d %s\n", isOnLine ? 1 : 0, apmStatus(),
                             currentState == Charging ? 0x09 : 0x01, currentPercentage,
                             hasTime ? currentPercentage * minutesForOnePercent : -1, hasTime ? "min" : "?")
        .toLatin1();
}
