// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"

#include "debuglines.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class CommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void leavesOutWhatTheToolkitTakes_data();
    void leavesOutWhatTheToolkitTakes();
    void noWordsLeadToARun();
    void mistakeIsToldAndEndsTheStart_data();
    void mistakeIsToldAndEndsTheStart();
};

void CommandLineTest::leavesOutWhatTheToolkitTakes_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("own");
    const QStringList none{u"zr-launcher"_s};
    QTest::newRow("no program name") << QStringList() << QStringList();
    QTest::newRow("only the name") << none << none;
    QTest::newRow("platform with its value") << none + QStringList{u"-platform"_s, u"offscreen"_s} << none;
    QTest::newRow("two dashes") << none + QStringList{u"--platform"_s, u"linuxfb:fb=/dev/fb0"_s} << none;
    QTest::newRow("value is missing")
        << none + QStringList{u"-platform"_s} << none + QStringList{u"-platform"_s};
    QTest::newRow("value behind an equals sign") << none + QStringList{u"-style=fusion"_s} << none;
    QTest::newRow("no value") << none + QStringList{u"-reverse"_s, u"-h"_s} << none + QStringList{u"-h"_s};
    QTest::newRow("bare word that looks like one")
        << none + QStringList{u"platform"_s} << none + QStringList{u"platform"_s};
    QTest::newRow("own words stay in order") << none + QStringList{u"-v"_s, u"-platform"_s, u"-h"_s, u"x"_s}
                                             << none + QStringList{u"-v"_s, u"x"_s};
    QTest::newRow("own word with an equals sign")
        << none + QStringList{u"--help=1"_s} << none + QStringList{u"--help=1"_s};
}

void CommandLineTest::leavesOutWhatTheToolkitTakes() {
    QFETCH(QStringList, words);
    QTEST(launcherArguments(words), "own");
}

void CommandLineTest::noWordsLeadToARun() {
    QVERIFY(!answerCommandLine({u"zr-launcher"_s}));
    QVERIFY(!answerCommandLine({u"zr-launcher"_s, u"-platform"_s, u"linuxfb"_s}));
}

void CommandLineTest::mistakeIsToldAndEndsTheStart_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown flag") << u"-x"_s << u"Unknown argument: -x"_s;
    QTest::newRow("unknown name") << u"--full"_s << u"Unknown argument: --full"_s;
    QTest::newRow("name that fits two options") << u"--v"_s << u"Unknown argument: --v"_s;
    QTest::newRow("bare word") << u"now"_s
                               << u"Unexpected option: now. Argument \"\" doesn't expect any values."_s;
}

void CommandLineTest::mistakeIsToldAndEndsTheStart() {
    QFETCH(QString, word);
    QFETCH(QString, message);
    const DebugLines debug;
    QCOMPARE(answerCommandLine({u"zr-launcher"_s, word}), 1);
    QCOMPARE(debug.lines().size(), 1);
    QCOMPARE(debug.lines().first(), "Invalid command line parameters: "_L1 + message);
}

QTEST_GUILESS_MAIN(CommandLineTest)
#include "tst_commandline.moc"
