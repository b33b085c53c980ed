// SPDX-License-Identifier: GPL-3.0-or-later
#include "crashes.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class CrashesTest : public QObject {
    Q_OBJECT

private slots:
    void threeCrashesDecide_data();
    void threeCrashesDecide();
    void lastTraceOfTheCulpritIsKept();
    void onlyTheLastMinuteCounts_data();
    void onlyTheLastMinuteCounts();
};

void CrashesTest::threeCrashesDecide_data() {
    QTest::addColumn<QStringList>("libraries");
    QTest::addColumn<QString>("leftOut");
    QTest::newRow("none") << QStringList() << QString();
    QTest::newRow("two") << QStringList({u"a"_s, u"a"_s}) << QString();
    QTest::newRow("three") << QStringList({u"a"_s, u"a"_s, u"a"_s}) << u"a"_s;
    QTest::newRow("another between") << QStringList({u"a"_s, u"b"_s, u"a"_s}) << u"a"_s;
    QTest::newRow("another last") << QStringList({u"a"_s, u"a"_s, u"b"_s}) << u"a"_s;
    QTest::newRow("each once") << QStringList({u"a"_s, u"b"_s, u"c"_s}) << u"c"_s;
}

void CrashesTest::threeCrashesDecide() {
    QFETCH(const QStringList, libraries);
    QFETCH(const QString, leftOut);
    QList<Crash> crashes;
    for (const QString &library : libraries)
        crashes.append({1s, library, {}});
    const std::optional<Crash> decided = crashToLeaveOut(crashes);
    QCOMPARE(decided ? decided->library : QString(), leftOut);
}

void CrashesTest::lastTraceOfTheCulpritIsKept() {
    QCOMPARE(crashToLeaveOut({{1s, u"a"_s, u"first"_s}, {2s, u"a"_s, u"second"_s}, {3s, u"b"_s, {}}})->trace,
             u"second"_s);
}

void CrashesTest::onlyTheLastMinuteCounts_data() {
    QTest::addColumn<int>("secondsBeforeNow");
    QTest::addColumn<bool>("counts");
    QTest::newRow("now") << 0 << true;
    QTest::newRow("a minute ago") << 60 << true;
    QTest::newRow("longer ago") << 61 << false;
    QTest::newRow("of an earlier start of the machine") << -1 << false;
}

void CrashesTest::onlyTheLastMinuteCounts() {
    QFETCH(const int, secondsBeforeNow);
    QFETCH(const bool, counts);
    const Crash crash{1000s - std::chrono::seconds(secondsBeforeNow), u"a"_s, {}};
    QCOMPARE(withinLastMinute({crash}, 1000s).contains(crash), counts);
}

QTEST_GUILESS_MAIN(CrashesTest)
#include "tst_crashes.moc"
