// SPDX-License-Identifier: GPL-3.0-or-later
#include "battery/simulatedbattery.h"

#include "power/apminfo.h"

#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the simulator writes, read as the launcher reads it.
class SimulatedBatteryTest : public QObject {
    Q_OBJECT

private slots:
    void lineIsReadAsWritten_data();
    void lineIsReadAsWritten();
    void chargeFallsAndRises();
    void storedStateComesBack_data();
    void storedStateComesBack();
    void ordersAreCarriedOut_data();
    void ordersAreCarriedOut();
    void machinesOwnFileIsNeverWritten();

private:
    static ApmInfo read(const SimulatedBattery &battery) {
        return apmInfo(QString::fromLatin1(battery.line()).trimmed());
    }
    static QString apmFile() { return qEnvironmentVariable("ZR_SYSROOT") + "/proc/apm"_L1; }
    static ApmInfo stored() {
        QFile file(apmFile());
        return file.open(QIODevice::ReadOnly) ? apmInfo(QString::fromLatin1(file.readLine()).trimmed())
                                              : ApmInfo();
    }
};

void SimulatedBatteryTest::lineIsReadAsWritten_data() {
    QTest::addColumn<int>("state");
    QTest::addColumn<int>("percentage");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("time");
    QTest::newRow("high") << int(SimulatedBattery::Discharging) << 76 << int(ApmInfo::High) << 228;
    QTest::newRow("low") << int(SimulatedBattery::Discharging) << 20 << int(ApmInfo::Low) << 60;
    QTest::newRow("critical") << int(SimulatedBattery::Discharging) << 5 << int(ApmInfo::Critical) << 15;
    QTest::newRow("charging") << int(SimulatedBattery::Charging) << 50 << int(ApmInfo::Charging) << -1;
    QTest::newRow("absent") << int(SimulatedBattery::Absent) << -1 << int(ApmInfo::Absent) << -1;
    QTest::newRow("unknown") << int(SimulatedBattery::Unknown) << -1 << 0xff << -1;
}

void SimulatedBatteryTest::lineIsReadAsWritten() {
    QFETCH(int, state);
    QFETCH(int, percentage);
    const ApmInfo info = read({SimulatedBattery::State(state), percentage});
    QCOMPARE(info.percentage, percentage);
    QTEST(info.batteryStatus, "status");
    QTEST(info.time, "time");
    QCOMPARE(info.units, info.time < 0 ? u"?"_s : u"min"_s);
}

void SimulatedBatteryTest::chargeFallsAndRises() {
    SimulatedBattery battery(SimulatedBattery::Discharging, 1);
    battery.step();
    battery.step();
    QCOMPARE(read(battery).percentage, 0);
    battery.setState(SimulatedBattery::Charging);
    for (int i = 0; i < 150; ++i)
        battery.step();
    QCOMPARE(read(battery).percentage, 100);
    battery.setState(SimulatedBattery::Absent);
    battery.step();
    QCOMPARE(read(battery).percentage, 100);
}

void SimulatedBatteryTest::storedStateComesBack_data() {
    QTest::addColumn<int>("state");
    for (const auto state : {SimulatedBattery::Discharging, SimulatedBattery::Charging,
                             SimulatedBattery::Absent, SimulatedBattery::Unknown})
        QTest::newRow(qPrintable(QString::number(state))) << int(state);
}

void SimulatedBatteryTest::storedStateComesBack() {
    QFETCH(int, state);
    const SimulatedBattery battery(SimulatedBattery::State(state), 42);
    QCOMPARE(battery.store(), QString());
    QCOMPARE(SimulatedBattery::stored().line(), battery.line());
    QVERIFY(QFile::remove(apmFile()));
    QCOMPARE(read(SimulatedBattery::stored()).percentage, 100);
}

void SimulatedBatteryTest::ordersAreCarriedOut_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::addColumn<int>("batteryStatus");
    QTest::newRow("set") << u"set 30"_s << 0 << int(ApmInfo::High);
    QTest::newRow("set charging") << u"set 30 charging"_s << 0 << int(ApmInfo::Charging);
    QTest::newRow("charge") << u"charge"_s << 0 << int(ApmInfo::Charging);
    QTest::newRow("discharge") << u"discharge"_s << 0 << int(ApmInfo::High);
    QTest::newRow("too much") << u"set 101"_s << 2 << -2;
    QTest::newRow("no number") << u"set full"_s << 2 << -2;
    QTest::newRow("unknown state") << u"set 5 exploding"_s << 2 << -2;
    QTest::newRow("nothing") << QString() << 2 << -2;
}

void SimulatedBatteryTest::ordersAreCarriedOut() {
    QFETCH(QString, words);
    QFile::remove(apmFile());
    QProcess simulator;
    simulator.start(QStringLiteral(SIMULATOR),
                    QStringList{u"battery"_s} + words.split(u' ', Qt::SkipEmptyParts));
    QVERIFY(simulator.waitForFinished());
    QTEST(simulator.exitCode(), "status");
    QTEST(stored().batteryStatus, "batteryStatus");
}

void SimulatedBatteryTest::machinesOwnFileIsNeverWritten() {
    const QByteArray root = qgetenv("ZR_SYSROOT");
    qunsetenv("ZR_SYSROOT");
    QCOMPARE(SimulatedBattery(SimulatedBattery::Charging, 1).store(),
             u"ZR_SYSROOT does not name the simulated instrument"_s);
    qputenv("ZR_SYSROOT", root);
}

QTEST_GUILESS_MAIN(SimulatedBatteryTest)
#include "tst_simulatedbattery.moc"
