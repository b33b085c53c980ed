// SPDX-License-Identifier: GPL-3.0-or-later
#include "uptime.h"

#include <QTest>

class UptimeTest : public QObject {
    Q_OBJECT

private slots:
    void firstNumberCounts_data();
    void firstNumberCounts();
};

void UptimeTest::firstNumberCounts_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("seconds");
    QTest::newRow("usual") << QByteArray("350735.47 234388.90\n") << 350735;
    QTest::newRow("one number") << QByteArray("12.99") << 12;
    QTest::newRow("just started") << QByteArray("0.00 0.00\n") << 0;
    QTest::newRow("empty is unknown") << QByteArray() << -1;
    QTest::newRow("a word is unknown") << QByteArray("long ago\n") << -1;
    QTest::newRow("negative is unknown") << QByteArray("-5 1\n") << -1;
    QTest::newRow("not a number is unknown") << QByteArray("nan nan\n") << -1;
    QTest::newRow("endless is unknown") << QByteArray("inf\n") << -1;
    QTest::newRow("beyond a thousand years is unknown") << QByteArray("1e300 1\n") << -1;
    QTest::newRow("huge is unknown") << QByteArray(1 << 20, '9') << -1;
    QTest::newRow("binary is unknown") << QByteArray("\0\1\2", 3) << -1;
}

void UptimeTest::firstNumberCounts() {
    QFETCH(const QByteArray, text);
    QTEST(static_cast<int>(uptimeIn(text).value_or(std::chrono::seconds(-1)).count()), "seconds");
}

QTEST_GUILESS_MAIN(UptimeTest)
#include "tst_uptime.moc"
