// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include <QRegularExpression>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Command lines that do not lead to a run, on a machine without any display.
class InstalledCommandLineTest : public QObject {
    Q_OBJECT

private slots:
    void helpAndVersionsArePrinted_data();
    void helpAndVersionsArePrinted();
    void mistakesAreTold_data();
    void mistakesAreTold();

private:
    static void takeDisplayAway(LauncherProcess &launcher) {
        launcher.environment.remove(u"QT_QPA_PLATFORM"_s);
        launcher.environment.remove(u"DISPLAY"_s);
    }
};

void InstalledCommandLineTest::helpAndVersionsArePrinted_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QString>("output");

    const QString help = u"GUI launcher 0\\.0\\.12-0\\.\n"
                         "  -h  --h\\[elp\\]       Print this help\\.\n"
                         "  -v  --ve\\[rsion\\]    Print version\\.\n"
                         "  -d  --vv\\[ersion\\]   Print version\\.\n"_s;
    const QString copyright =
        u"Copyright \\(C\\) 2009 .*\nLicense GPLv3\\+: GNU GPL version 3 or later\n<.*>\n"
        "This is free software: you are free to change and redistribute it\\.\n"
        "There is NO WARRANTY, to the extent permitted by law\\.\n\n"_s;
    const QString version = u"GUI launcher 0\\.0\\.12-0\n"_s + copyright;
    const QString longVersion =
        u"GUI launcher 0\\.0\\.12-0\nmade by .*, on .* from revision: \\d+m?\n"_s + copyright;

    QTest::newRow("-h") << QStringList{u"-h"_s} << help;
    QTest::newRow("--help") << QStringList{u"--help"_s} << help;
    QTest::newRow("--he") << QStringList{u"--he"_s} << help;
    QTest::newRow("-v") << QStringList{u"-v"_s} << version;
    QTest::newRow("--version") << QStringList{u"--version"_s} << version;
    QTest::newRow("-d") << QStringList{u"-d"_s} << longVersion;
    QTest::newRow("--vversion") << QStringList{u"--vversion"_s} << longVersion;
    QTest::newRow("-hv prints the help only") << QStringList{u"-hv"_s} << help;
    QTest::newRow("--help=1") << QStringList{u"--help=1"_s} << help;
    QTest::newRow("platform named as well") << QStringList{u"-platform"_s, u"linuxfb"_s, u"-h"_s} << help;
}

void InstalledCommandLineTest::helpAndVersionsArePrinted() {
    QFETCH(QStringList, words);
    QFETCH(QString, output);
    LauncherProcess launcher;
    takeDisplayAway(launcher);
    QCOMPARE(launcher.runToEnd(words), 1);
    const QByteArray printed = launcher.output();
    QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(output))
                 .match(QString::fromUtf8(printed))
                 .hasMatch(),
             printed);
    QCOMPARE(launcher.errors(), "Loading translator... OK\n"_ba);
}

void InstalledCommandLineTest::mistakesAreTold_data() {
    QTest::addColumn<QString>("word");
    QTest::addColumn<QByteArray>("message");
    QTest::newRow("unknown flag") << u"-x"_s << "Unknown argument: -x"_ba;
    QTest::newRow("unknown name") << u"--full"_s << "Unknown argument: --full"_ba;
    QTest::newRow("name that fits two") << u"--v"_s << "Unknown argument: --v"_ba;
    QTest::newRow("bare word") << u"now"_s
                               << "Unexpected option: now. Argument \"\" doesn't expect any values."_ba;
}

void InstalledCommandLineTest::mistakesAreTold() {
    QFETCH(QString, word);
    QFETCH(QByteArray, message);
    LauncherProcess launcher;
    takeDisplayAway(launcher);
    QCOMPARE(launcher.runToEnd({word}), 1);
    QCOMPARE(launcher.output(), QByteArray());
    QCOMPARE(launcher.errors(),
             "Loading translator... OK\nInvalid command line parameters: " + message + '\n');
}

QTEST_GUILESS_MAIN(InstalledCommandLineTest)
#include "tst_installedcommandline.moc"
