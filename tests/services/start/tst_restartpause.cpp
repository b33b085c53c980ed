// SPDX-License-Identifier: GPL-3.0-or-later
#include "restartpause.h"

#include <QTest>

#include <limits>

using namespace std::chrono_literals;

class RestartPauseTest : public QObject {
    Q_OBJECT

private slots:
    void pauseGrowsUpToTheLongest_data();
    void pauseGrowsUpToTheLongest();
    void threeFailuresFitIntoAMinute();
    void longRunStartsANewRow_data();
    void longRunStartsANewRow();
};

void RestartPauseTest::pauseGrowsUpToTheLongest_data() {
    QTest::addColumn<qint64>("failedRuns");
    QTest::addColumn<int>("longest");
    QTest::addColumn<int>("seconds");
    QTest::newRow("nonsense") << qint64(-1) << 60 << 0;
    QTest::newRow("first start") << qint64(0) << 60 << 0;
    QTest::newRow("after one") << qint64(1) << 60 << 1;
    QTest::newRow("after two") << qint64(2) << 60 << 2;
    QTest::newRow("after three") << qint64(3) << 60 << 4;
    QTest::newRow("after six") << qint64(6) << 60 << 32;
    QTest::newRow("the longest") << qint64(7) << 60 << 60;
    QTest::newRow("a row without end") << std::numeric_limits<qint64>::max() << 60 << 60;
    QTest::newRow("another longest") << qint64(7) << 5 << 5;
    QTest::newRow("none wanted") << qint64(7) << 0 << 0;
}

void RestartPauseTest::pauseGrowsUpToTheLongest() {
    QFETCH(const qint64, failedRuns);
    QFETCH(const int, longest);
    QFETCH(const int, seconds);
    QCOMPARE(restartPause(failedRuns, std::chrono::seconds(longest)), std::chrono::seconds(seconds));
}

void RestartPauseTest::threeFailuresFitIntoAMinute() {
    // A plug-in is left out after so many; each run may take some seconds too.
    QVERIFY(restartPause(0, 60s) + restartPause(1, 60s) + restartPause(2, 60s) <= 10s);
}

void RestartPauseTest::longRunStartsANewRow_data() {
    QTest::addColumn<int>("seconds");
    QTest::addColumn<qint64>("failedRuns");
    QTest::newRow("at once") << 0 << qint64(5);
    QTest::newRow("a minute") << 60 << qint64(5);
    QTest::newRow("longer") << 61 << qint64(0);
}

void RestartPauseTest::longRunStartsANewRow() {
    QFETCH(const int, seconds);
    QFETCH(const qint64, failedRuns);
    QCOMPARE(failedRunsAfterFailure(4, std::chrono::seconds(seconds)), failedRuns);
}

QTEST_APPLESS_MAIN(RestartPauseTest)
#include "tst_restartpause.moc"
