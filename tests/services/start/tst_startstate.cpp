// SPDX-License-Identifier: GPL-3.0-or-later
#include "startstate.h"

#include <errorstream.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class StartStateTest : public QObject {
    Q_OBJECT

private slots:
    void stateIsReadAsItWasWritten();
    void noFileIsNoState();
    void damageIsToldAndIgnored_data();
    void damageIsToldAndIgnored();
    void failureIsTold();
};

void StartStateTest::stateIsReadAsItWasWritten() {
    const QTemporaryDir directory;
    const StartState state{{{5s, u"/p/a.so"_s, u"one\ntwo"_s}}, {{u"/p/\"б\".so"_s, 3, u"trace"_s}}, 4};
    writeState(directory.filePath(u"state"_s), state);
    QCOMPARE(readState(directory.filePath(u"state"_s)), state);
}

void StartStateTest::noFileIsNoState() {
    ErrorStream errors;
    QCOMPARE(readState(u"/not/there"_s), StartState());
    QCOMPARE(errors.take(), QByteArray());
}

void StartStateTest::damageIsToldAndIgnored_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("not of this form") << QByteArray("[crashes]");
    QTest::newRow("cut short") << toBytes({{{5s, u"a"_s, {}}}, {}, 0}).chopped(5);
    QTest::newRow("no list") << QByteArray(R"({"crashes": 3, "leftOut": [], "failedRuns": 0})");
    QTest::newRow("no library") << QByteArray(
        R"({"crashes": [{"moment": 3, "trace": ""}], "leftOut": [], "failedRuns": 0})");
    QTest::newRow("no number") << QByteArray(
        R"({"crashes": [{"moment": "x", "library": "a", "trace": ""}], "leftOut": [], "failedRuns": 0})");
    QTest::newRow("left out without a trace")
        << QByteArray(R"({"crashes": [], "leftOut": [{"library": "a", "crashes": 3}], "failedRuns": 0})");
    QTest::newRow("no failed runs") << QByteArray(R"({"crashes": [], "leftOut": []})");
    QTest::newRow("fewer than none") << QByteArray(R"({"crashes": [], "leftOut": [], "failedRuns": -1})");
}

void StartStateTest::damageIsToldAndIgnored() {
    QFETCH(const QByteArray, bytes);
    const QTemporaryDir directory;
    QFile file(directory.filePath(u"state"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    file.close();
    ErrorStream errors;
    QCOMPARE(readState(file.fileName()), StartState());
    QCOMPARE(errors.take().count('\n'), 1);
}

void StartStateTest::failureIsTold() {
    ErrorStream errors;
    writeState(u"/proc/not/there"_s, {});
    QVERIFY(errors.take().startsWith("A failed run cannot be remembered in /proc/not/there: "));
}

QTEST_GUILESS_MAIN(StartStateTest)
#include "tst_startstate.moc"
