// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemreport.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemReportTest : public QObject {
    Q_OBJECT

private slots:
    void factsAndStorageAreLines();
    void unknownMachineStillMakesAReport();
};

void SystemReportTest::factsAndStorageAreLines() {
    SystemState state;
    state.host = u"box"_s;
    state.memory = MemoryUse{500'000'000, 1'000'000'000};
    const MountedVolume home{{u"/dev/sda2"_s, u"/home"_s, u"ext4"_s}, {4'000'000, 1'000'000, 2'500'000, 1}};
    const QDateTime moment(QDate(2026, 11, 21), QTime(14, 32));
    const QStringList lines = SystemReport::text(moment, state, {home}).split(u'\n');
    QVERIFY(lines[1].contains("2026"_L1));
    QVERIFY(lines.contains(u"Host name:          box"_s));
    QVERIFY(lines.contains(u"Memory:             500.0 MB of 1.0 GB used (50%)"_s));
    QVERIFY(lines.contains(u"/home: 1.0 MB of 4.0 MB used, 2.5 MB free (/dev/sda2, ext4)"_s));
    QVERIFY(lines.last().isEmpty());
}

void SystemReportTest::unknownMachineStillMakesAReport() {
    QVERIFY(SystemReport::text(QDateTime(), SystemState(), {}).contains("Unknown"_L1));
}

QTEST_GUILESS_MAIN(SystemReportTest)
#include "tst_systemreport.moc"
