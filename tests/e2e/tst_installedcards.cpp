// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "testconfig.h"

#include <QDir>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The installed launcher and the installed simulator, which know each other only by bus, files and card lines.
class InstalledCardsTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void cardsComeGoAndSwitchTheirModes();
    void persistentPageIsBoundFreedAndBoundAgain();
    void cardThatHangsIsToldAndTheWindowAnswers();
    void unknownCardIsToldToTheUser();
    void reportThatACardCoveredIsLeftAsItsButtonSays();
    void launcherWithoutABusShowsTheCardsThatAreThere();

private:
    static QString card(const QString &words) {
        QProcess simulator;
        simulator.start(QStringLiteral(E2E_TREE "/bin/zr-simulator"),
                        QStringList{u"card"_s} + words.split(u' '));
        simulator.waitForFinished();
        return QString::fromUtf8(simulator.readAllStandardOutput()).trimmed();
    }
    static QStringList commandsOf(const QString &name) { return card("commands "_L1 + name).split(u'\n'); }
    void configure(const QString &persistent) {
        config.setPath(u""_s);
        config.setPersistent(persistent);
        config.setCollection(u"zr"_s, u"probe"_s);
        config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    }

    TestConfig config;
};

void InstalledCardsTest::init() {
    config = TestConfig();
    QVERIFY(QDir().mkpath(qEnvironmentVariable("ZR_SYSROOT") + "/var/run/tester"_L1));
}

void InstalledCardsTest::cleanup() {
    for (const QString &name : card(u"list"_s).split(u'\n', Qt::SkipEmptyParts))
        card("remove "_L1 + name);
}

void InstalledCardsTest::cardsComeGoAndSwitchTheirModes() {
    configure(u"zr"_s);
    // One is there before the launcher, two come later.
    card(u"insert e1 101 --dual"_s);
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QCOMPARE(launcher.caption(), u"ИКМ"_s);
    card(u"insert gbe 7 --tcp"_s);
    QTRY_COMPARE(launcher.caption(), u"GbE"_s);
    QTRY_VERIFY(launcher.leds().contains(u"LINK:1"_s));
    card(u"insert e1 102 --dual --serial"_s);
    QTRY_COMPARE(launcher.selectorTexts().size(), 6);
    QTRY_COMPARE(launcher.caption(), u"ИКМ"_s);
    // The second e1 card has the screen.
    QTRY_VERIFY(launcher.leds().contains(u"LOS:1"_s));
    card(u"alarm e1-102 LOS present"_s);
    QTRY_VERIFY(launcher.leds().contains(u"LOS:3"_s));
    card(u"alarm e1-101 AIS present"_s);
    card(u"alarm e1-102 LOS none"_s);
    QTRY_VERIFY(launcher.leds().contains(u"LOS:2"_s));
    QVERIFY(launcher.leds().contains(u"AIS:1"_s));

    QVERIFY(launcher.press(u"GbE"_s));
    QTRY_COMPARE(launcher.caption(), u"GbE"_s);
    QCOMPARE(launcher.leds().size(), 5);
    QVERIFY(launcher.press(u"Настройки"_s));
    QVERIFY(launcher.leds().isEmpty());

    // The card that the pressed page belongs to is switched, the other one is left alone.
    const qsizetype before101 = commandsOf(u"e1-101"_s).size();
    const qsizetype before102 = commandsOf(u"e1-102"_s).size();
    QVERIFY(launcher.press(u"Сигнализация"_s));
    QTRY_VERIFY(launcher.leds().contains(u"LOMF:1"_s));
    const QStringList news = commandsOf(u"e1-101"_s).mid(before101) + commandsOf(u"e1-102"_s).mid(before102);
    const QStringList usual{u"operation sa"_s, u"parameters"_s, u"status alarms"_s};
    // A card that was slow to tell its alarms is not asked twice.
    QVERIFY2(news == usual || news == usual + QStringList{u"status alarms"_s},
             qPrintable(news.join(u", "_s)));

    // The page of the card that goes is left.
    const QString shown = commandsOf(u"e1-101"_s).size() > before101 ? u"e1-101"_s : u"e1-102"_s;
    card("remove "_L1 + shown);
    QTRY_COMPARE(launcher.selectorTexts().size(), 4);
    QVERIFY(launcher.shownPage() == "pageLauncher"_L1);
    card(u"remove gbe-7"_s);
    QTRY_COMPARE(launcher.selectorTexts().size(), 3);
    card(shown == "e1-101"_L1 ? u"remove e1-102"_s : u"remove e1-101"_s);
    QTRY_COMPARE(launcher.selectorTexts(), QStringList{u"Настройки"_s});
    QTRY_COMPARE(launcher.caption(), u"Настройки"_s);
    QCOMPARE(launcher.message(), QString());
}

void InstalledCardsTest::persistentPageIsBoundFreedAndBoundAgain() {
    configure(u"zr e1"_s);
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QVERIFY(launcher.press(u"ИКМ"_s));
    QVERIFY(launcher.leds().isEmpty());
    for (const QString &number : {u"201"_s, u"202"_s}) {
        card(u"insert e1 %1"_s.arg(number));
        QTRY_VERIFY(launcher.leds().contains(u"LOS:1"_s));
        card(u"alarm e1-%1 LOS present"_s.arg(number));
        QTRY_VERIFY(launcher.leds().contains(u"LOS:3"_s));
        QVERIFY(launcher.press(u"ledPanel"_s));
        QTRY_COMPARE(commandsOf("e1-"_L1 + number).last(), u"status alarms reset"_s);
        card("remove e1-"_L1 + number);
        QTRY_VERIFY(launcher.leds().isEmpty());
        QCOMPARE(launcher.selectorTexts().size(), 2);
    }
    QVERIFY(launcher.press(u"Настройки"_s));
    QVERIFY(launcher.press(u"ИКМ"_s));
    QVERIFY(launcher.leds().isEmpty());
}

void InstalledCardsTest::cardThatHangsIsToldAndTheWindowAnswers() {
    configure(u"zr"_s);
    card(u"insert e1 301 --dual"_s);
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    card(u"hang e1-301"_s);
    QVERIFY(launcher.press(u"Сигнализация"_s));
    QTRY_VERIFY2(launcher.message().contains(u"e1, номер 301, команда «operation sa»"_s),
                 qPrintable(launcher.message()));
    QVERIFY(launcher.press(u"ОК"_s));
    // Refused: the old page stays.
    QCOMPARE(launcher.caption(), u"ИКМ"_s);
    card(u"resume e1-301"_s);
    QTRY_VERIFY(launcher.press(u"Сигнализация"_s) && launcher.caption() == u"Сигнализация"_s);
}

void InstalledCardsTest::unknownCardIsToldToTheUser() {
    configure(u"zr"_s);
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QProcess::execute(u"dbus-send"_s, {u"--session"_s, u"/"_s, u"zr.card.inserted"_s, u"string:e7"_s,
                                       u"int32:1"_s, u"string:x"_s, u"string:y"_s});
    QTRY_COMPARE(launcher.message(), u"Тип карты e7 не поддерживается"_s);
    QVERIFY(launcher.press(u"ОК"_s));
    QTRY_COMPARE(launcher.message(), QString());
}

void InstalledCardsTest::reportThatACardCoveredIsLeftAsItsButtonSays() {
    configure(u"zr"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    config.setCollection(u"zr"_s, u"probe reports"_s);
    config.addPlugin(u"reports"_s, {.version = 1,
                                    .column = 2,
                                    .file = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR
                                                                    "/zr-launcher/plugins/libreports.so")});
    QVERIFY(QDir().mkpath(QDir::homePath() + "/reports"_L1));
    QFile report(QDir::homePath() + "/reports/line.txt"_L1);
    QVERIFY(report.open(QIODevice::WriteOnly));
    report.close();
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QVERIFY(launcher.press(u"Отчёты"_s));
    QVERIFY(launcher.pressRow(0));
    QVERIFY(launcher.press(u"Открыть"_s));
    QCOMPARE(launcher.backButtonText(), u"◄ Отчёты"_s);
    card(u"insert gbe 8"_s);
    QTRY_COMPARE(launcher.caption(), u"GbE"_s);
    QVERIFY(launcher.press(u"Настройки"_s));

    QVERIFY(launcher.press(u"Отчёты"_s));
    QCOMPARE(launcher.caption(), u"line.txt"_s);
    QCOMPARE(launcher.backButtonText(), u"◄ Отчёты"_s);
    QVERIFY(launcher.press(u"◄ Отчёты"_s));
    QVERIFY(launcher.isVisible(u"Удалить"_s));
    QCOMPARE(launcher.backButtonText(), u"◄ Настройки"_s);
    QVERIFY(launcher.press(u"◄ Настройки"_s));
    QCOMPARE(launcher.shownPage(), u"pageLauncher"_s);
}

void InstalledCardsTest::launcherWithoutABusShowsTheCardsThatAreThere() {
    config.setPersistent(u"zr"_s);
    card(u"insert e1 401"_s);
    QProcess launcher;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    launcher.setProcessEnvironment(environment);
    launcher.start(QStringLiteral(E2E_TREE "/bin/zr-launcher"), {});
    QByteArray errors;
    const auto told = [&](const QByteArray &line) {
        errors += launcher.readAllStandardError();
        return errors.contains(line);
    };
    QTRY_VERIFY2_WITH_TIMEOUT(told("No connection to the D-Bus session bus.\n"), errors,
                              LauncherProcess::longestStartMs);
    QTRY_VERIFY2_WITH_TIMEOUT(told("new card inserted"), errors, LauncherProcess::longestStartMs);
    QTRY_VERIFY(commandsOf(u"e1-401"_s).contains(u"parameters"_s));
    launcher.terminate();
    launcher.waitForFinished();
}

QTEST_GUILESS_MAIN(InstalledCardsTest)
#include "tst_installedcards.moc"
