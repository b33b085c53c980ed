// SPDX-License-Identifier: GPL-3.0-or-later
#include "cputimes.h"

#include <QTest>

class CpuTimesTest : public QObject {
    Q_OBJECT

private slots:
    void busyAndTotalAreCounted_data();
    void busyAndTotalAreCounted();
    void foreignTextHasNoTimes_data();
    void foreignTextHasNoTimes();
    void loadIsTheBusyPart_data();
    void loadIsTheBusyPart();
};

void CpuTimesTest::busyAndTotalAreCounted_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<quint64>("busy");
    QTest::addColumn<quint64>("total");
    QTest::newRow("ten columns; guests are in user already")
        << QByteArray("cpu  100 5 50 800 20 3 2 20 30 4\ncpu0 1 2 3 4\n") << quint64(180) << quint64(1000);
    QTest::newRow("old kernel with four columns")
        << QByteArray("cpu 10 0 10 80\n") << quint64(20) << quint64(100);
    QTest::newRow("no line end") << QByteArray("cpu 10 0 10 80") << quint64(20) << quint64(100);
}

void CpuTimesTest::busyAndTotalAreCounted() {
    QFETCH(const QByteArray, text);
    const std::optional<CpuTimes> times = cpuTimesIn(text);
    QVERIFY(times);
    QTEST(times->busy, "busy");
    QTEST(times->total, "total");
}

void CpuTimesTest::foreignTextHasNoTimes_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("blank lines") << QByteArray("\n\n");
    QTest::newRow("cut off") << QByteArray("cpu  100 5 5");
    QTest::newRow("one processor only") << QByteArray("cpu0 1 2 3 4\n");
    QTest::newRow("words") << QByteArray("cpu a b c d\n");
    QTest::newRow("negative") << QByteArray("cpu -1 2 3 4\n");
    QTest::newRow("beyond 64 bits") << QByteArray("cpu 99999999999999999999999 2 3 4\n");
    QTest::newRow("binary") << QByteArray("\0\xff\xfe\n", 4);
    QTest::newRow("huge") << QByteArray(1 << 20, '7');
}

void CpuTimesTest::foreignTextHasNoTimes() {
    QFETCH(const QByteArray, text);
    QVERIFY(!cpuTimesIn(text));
}

void CpuTimesTest::loadIsTheBusyPart_data() {
    QTest::addColumn<quint64>("busy");
    QTest::addColumn<quint64>("total");
    QTest::addColumn<int>("load");
    QTest::newRow("idle") << quint64(50) << quint64(200) << 0;
    QTest::newRow("half") << quint64(100) << quint64(200) << 50;
    QTest::newRow("fully busy") << quint64(150) << quint64(200) << 100;
    QTest::newRow("idle time went backwards") << quint64(150) << quint64(190) << 100;
    QTest::newRow("no time has passed") << quint64(50) << quint64(100) << -1;
    QTest::newRow("counters went backwards") << quint64(40) << quint64(200) << -1;
}

void CpuTimesTest::loadIsTheBusyPart() {
    QFETCH(const quint64, busy);
    QFETCH(const quint64, total);
    QTEST(loadBetween({50, 100}, {busy, total}).value_or(-1), "load");
}

QTEST_GUILESS_MAIN(CpuTimesTest)
#include "tst_cputimes.moc"
