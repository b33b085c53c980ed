// SPDX-License-Identifier: GPL-3.0-or-later
#include "batterycommand.h"

#include "battery/simulatedbattery.h"

#include <QCoreApplication>
#include <QTimer>

#include <iostream>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

enum ExitStatus { Done = 0, Failed = 1, Misused = 2 };

constexpr auto stepInterval = 2s;
constexpr int highestPercentage = 100;

int misuse() {
    std::cerr << qPrintable(batteryCommandHelp());
    return Misused;
}

int store(const SimulatedBattery &battery) {
    const QString error = battery.store();
    if (error.isEmpty())
        return Done;
    std::cerr << "zr-simulator: " << qPrintable(error) << std::endl;
    return Failed;
}

std::optional<SimulatedBattery::State> stateNamed(const QString &name) {
    if (name == "discharging"_L1)
        return SimulatedBattery::Discharging;
    if (name == "charging"_L1)
        return SimulatedBattery::Charging;
    if (name == "absent"_L1)
        return SimulatedBattery::Absent;
    if (name == "unknown"_L1)
        return SimulatedBattery::Unknown;
    return std::nullopt;
}

int setBattery(const QStringList &words) {
    bool isNumber = false;
    const int percentage = words.value(0).toInt(&isNumber);
    const auto state = stateNamed(words.value(1, u"discharging"_s));
    if (!isNumber || percentage < -1 || percentage > highestPercentage || !state || words.size() > 2)
        return misuse();
    return store({*state, percentage});
}

int changeState(SimulatedBattery::State state) {
    SimulatedBattery battery = SimulatedBattery::stored();
    battery.setState(state);
    return store(battery);
}

int live(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [] {
        SimulatedBattery battery = SimulatedBattery::stored();
        battery.step();
        static_cast<void>(store(battery));
    });
    timer.start(stepInterval);
    return QCoreApplication::exec();
}

} // namespace

QString batteryCommandHelp() {
    return uR"(zr-simulator battery: the power state that the kernel tells.

  set PERCENT [discharging | charging | absent | unknown]
                             -1: the charge is unknown
  charge, discharge          plugs the charger in, or pulls it
  live                       lets the charge fall, or rise while it is charged, until it is ended
)"_s;
}

int runBatteryCommand(const QStringList &words, int argc, char *argv[]) {
    const QString verb = words.value(0);
    if (verb == "set"_L1)
        return setBattery(words.mid(1));
    if (words.size() == 1 && verb == "charge"_L1)
        return changeState(SimulatedBattery::Charging);
    if (words.size() == 1 && verb == "discharge"_L1)
        return changeState(SimulatedBattery::Discharging);
    if (words.size() == 1 && verb == "live"_L1)
        return live(argc, argv);
    return misuse();
}
