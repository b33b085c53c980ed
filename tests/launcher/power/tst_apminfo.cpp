// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/apminfo.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ApmInfoTest : public QObject {
    Q_OBJECT

private slots:
    void columnsAreRead_data();
    void columnsAreRead();
    void defaultRecordDiffersFromEveryReading();
    void tenThousandColumnsAreNoMoreThanNine();
};

void ApmInfoTest::columnsAreRead_data() {
    QTest::addColumn<QString>("line");
    QTest::addColumn<ApmInfo>("info");
    QTest::newRow("charging") << u"1.16 1.2 0x03 0x01 0x03 0x09 100% -1 ?"_s
                              << ApmInfo{u"1.16"_s, 1, 2, 3, 1, 3, 9, 100, -1, u"?"_s};
    QTest::newRow("without 0x") << u"1.16 1.2 03 01 ff 80 5% 12 min"_s
                                << ApmInfo{u"1.16"_s, 1, 2, 3, 1, 0xff, 0x80, 5, 12, u"min"_s};
    QTest::newRow("unknown charge and time") << u"1.16 1.2 0x03 0x01 0x04 0x80 -1% -1 ?"_s
                                             << ApmInfo{u"1.16"_s, 1, 2, 3, 1, 4, 0x80, -1, -1, u"?"_s};
    QTest::newRow("0x more than once")
        << u"a 1.2 0x0x10 0 0 0 1% 1 s"_s << ApmInfo{u"a"_s, 1, 2, 16, 0, 0, 0, 1, 1, u"s"_s};
    QTest::newRow("0X is no 0x, but a number all the same")
        << u"a 1.2 0X10 0 0 0 1% 1 s"_s << ApmInfo{u"a"_s, 1, 2, 16, 0, 0, 0, 1, 1, u"s"_s};
    QTest::newRow("three parts of a version")
        << u"a 1.2.3 0 0 0 0 0% 0 s"_s << ApmInfo{u"a"_s, 1, 2, 0, 0, 0, 0, 0, 0, u"s"_s};
    QTest::newRow("version without a point")
        << u"a 7 0 0 0 0 0% 0 s"_s << ApmInfo{u"a"_s, 7, 0, 0, 0, 0, 0, 0, 0, u"s"_s};
    QTest::newRow("per cent signs anywhere")
        << u"a 1.2 0 0 0 0 %4%2% 0 s"_s << ApmInfo{u"a"_s, 1, 2, 0, 0, 0, 0, 42, 0, u"s"_s};
    QTest::newRow("empty") << QString() << ApmInfo{QString(), 0, 0, 0, 0, 0, 0, 0, 0, QString()};
    QTest::newRow("one column") << u"1.16"_s << ApmInfo{u"1.16"_s, 0, 0, 0, 0, 0, 0, 0, 0, QString()};
    QTest::newRow("two blanks are an empty column")
        << u"a  0x03"_s << ApmInfo{u"a"_s, 0, 0, 3, 0, 0, 0, 0, 0, QString()};
    QTest::newRow("words") << u"a b.c d e f g h% i j"_s
                           << ApmInfo{u"a"_s, 0, 0, 0xd, 0xe, 0xf, 0, 0, 0, u"j"_s};
    QTest::newRow("negative") << u"a -1.-2 -3 -1 -1 -1 -50% -20 s"_s
                              << ApmInfo{u"a"_s, -1, -2, -3, -1, -1, -1, -50, -20, u"s"_s};
    QTest::newRow("too large") << u"a 99999999999.1 fffffffff 0 0 0 99999999999% 99999999999 s"_s
                               << ApmInfo{u"a"_s, 0, 1, 0, 0, 0, 0, 0, 0, u"s"_s};
    QTest::newRow("other letters") << u"ж 1.2 0 0 0 0 ٣% 1 мин"_s
                                   << ApmInfo{u"ж"_s, 1, 2, 0, 0, 0, 0, 0, 1, u"мин"_s};
}

void ApmInfoTest::columnsAreRead() {
    QFETCH(QString, line);
    QFETCH(ApmInfo, info);
    const ApmInfo read = apmInfo(line);
    QCOMPARE(read.driverVersion, info.driverVersion);
    QCOMPARE(read.biosMajor, info.biosMajor);
    QCOMPARE(read.biosMinor, info.biosMinor);
    QCOMPARE(read.apmFlags, info.apmFlags);
    QCOMPARE(read.acLineStatus, info.acLineStatus);
    QCOMPARE(read.batteryStatus, info.batteryStatus);
    QCOMPARE(read.batteryFlag, info.batteryFlag);
    QCOMPARE(read.percentage, info.percentage);
    QCOMPARE(read.time, info.time);
    QCOMPARE(read.units, info.units);
}

void ApmInfoTest::defaultRecordDiffersFromEveryReading() {
    QVERIFY(ApmInfo() != apmInfo(QString()));
    QVERIFY(ApmInfo().percentage < -1);
    QVERIFY(ApmInfo().batteryStatus < -1);
}

void ApmInfoTest::tenThousandColumnsAreNoMoreThanNine() {
    QCOMPARE(apmInfo(u"7 "_s.repeated(10'000)).units, u"7"_s);
}

QTEST_GUILESS_MAIN(ApmInfoTest)
#include "tst_apminfo.moc"
