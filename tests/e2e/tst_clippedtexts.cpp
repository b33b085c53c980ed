// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Words {
    QString system, network, reports, sound, open, remove, no, yes, ok, pcm, settings;
};

const Words english{u"System"_s, u"Network"_s, u"Reports"_s, u"Sound"_s, u"Open"_s,    u"Delete"_s,
                    u"No"_s,     u"Yes"_s,     u"OK"_s,      u"PCM"_s,   u"Settings"_s};
const Words russian{u"Система"_s, u"Сеть"_s, u"Отчёты"_s, u"Звук"_s, u"Открыть"_s,  u"Удалить"_s,
                    u"Нет"_s,     u"Да"_s,   u"ОК"_s,     u"ИКМ"_s,  u"Настройки"_s};

void write(const QString &file, const QByteArray &text) {
    QFile written(file);
    if (written.open(QIODevice::WriteOnly))
        written.write(text);
}

/// What the start wrapper knows of a plug-in that has crashed three times.
void leaveOut(const QString &library) {
    const QString directory = qEnvironmentVariable("XDG_RUNTIME_DIR") + "/zr-launcher"_L1;
    QDir().mkpath(directory);
    const QJsonObject plugin{{u"library"_s, library},
                             {u"crashes"_s, 3},
                             {u"trace"_s, u"[bt]: (2) /usr/lib/libreflectometer.so(_Z4drawv+0x1c) draw()"_s}};
    const QJsonObject state{
        {u"failedRuns"_s, 0}, {u"crashes"_s, QJsonArray()}, {u"leftOut"_s, QJsonArray{plugin}}};
    write(directory + "/crashes.json"_L1, QJsonDocument(state).toJson());
}

void simulate(const QString &words) {
    QProcess::execute(QStringLiteral(E2E_TREE "/bin/zr-simulator"), words.split(u' '));
}

} // namespace

/// Walks through every screen of the installed launcher and asks for texts that are not shown whole.
class ClippedTextsTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void everyTextIsShownWhole_data();
    void everyTextIsShownWhole();
    void longNameIsFound();

private:
    void configure(const QString &otherGroups);

    TestConfig config;
};

void ClippedTextsTest::init() {
    config = TestConfig();
    QVERIFY(QDir().mkpath(qEnvironmentVariable("ZR_SYSROOT") + "/var/run/tester"_L1));
    const QString reports = QDir::homePath() + "/reports"_L1;
    QDir(reports).removeRecursively();
    QVERIFY(QDir().mkpath(reports));
    write(reports + "/e1-line-3.txt"_L1, "E1 line 3, 120 ohm\nBit errors        3\n");
    QImage picture(640, 320, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QVERIFY(picture.save(reports + "/trace-1550nm.png"_L1));
}

void ClippedTextsTest::cleanup() {
    for (const auto &card : {u"e1-1001"_s, u"gbe-2001"_s})
        simulate("card remove "_L1 + card);
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/dev"_L1).removeRecursively();
}

void ClippedTextsTest::configure(const QString &otherGroups) {
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, otherGroups + " probe"_L1);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
}

void ClippedTextsTest::everyTextIsShownWhole_data() {
    QTest::addColumn<bool>("isRussian");
    QTest::addColumn<int>("height");
    QTest::newRow("English, 480") << false << 480;
    QTest::newRow("English, 600") << false << 600;
    QTest::newRow("Russian, 480") << true << 480;
    QTest::newRow("Russian, 600") << true << 600;
}

void ClippedTextsTest::everyTextIsShownWhole() {
    QFETCH(bool, isRussian);
    QFETCH(int, height);
    const Words &words = isRussian ? russian : english;
    const QString back = u"◄ "_s + words.settings;
    configure(u"system network reports sound night refresh reflectometer"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config.addPlugin(u"system"_s, {.file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"network"_s, {.row = 2, .file = plugins + "libnetwork.so"_L1});
    config.addPlugin(u"reports"_s, {.version = 1, .column = 2, .file = plugins + "libreports.so"_L1});
    config.addPlugin(u"sound"_s, {.row = 2, .column = 2, .file = plugins + "libsound.so"_L1});
    config.addPlugin(u"night"_s, {.row = 3, .column = 2, .file = plugins + "libnight.so"_L1});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});

    const QString crashing = u"/nowhere/libreflectometer.so"_s;
    config.addPlugin(u"reflectometer"_s, {.row = 4, .file = crashing});
    leaveOut(crashing);

    LauncherProcess launcher;
    launcher.setScreenHeight(height);
    const QString program = isRussian ? launcher.program : QStringLiteral(E2E_ENGLISH_LAUNCHER);
    launcher.program = QStringLiteral(E2E_TREE "/bin/zr-start");
    QVERIFY2(launcher.start({program}), launcher.errors());
    QCOMPARE(launcher.windowSize().last(), QString::number(height));

    QStringList clipped;
    const auto look = [&](const QString &screen) {
        for (const QString &text : launcher.clippedTexts())
            clipped.append(screen + ": "_L1 + text);
    };
    const auto pressAndLook = [&](const QString &nameOrText) {
        if (!launcher.press(nameOrText))
            clipped.append(nameOrText + " cannot be pressed"_L1);
        look(nameOrText);
    };

    look(u"home"_s);
    pressAndLook(u"labelBattery"_s);
    launcher.closePopup();
    pressAndLook(words.sound);
    launcher.closePopup();
    QVERIFY(launcher.pressWithKey(words.sound));
    QCOMPARE(launcher.shownPopup(), u"VolumePanel"_s);
    look(u"volume panel opened by a key"_s);
    launcher.closePopup();
    pressAndLook(u"labelInfo"_s);
    launcher.press(u"labelInfo"_s);
    pressAndLook(words.system);
    pressAndLook(u"labelReport"_s);
    launcher.press(u"labelReport"_s);
    pressAndLook(u"labelSettings"_s);
    launcher.press(back);
    launcher.press(back);
    pressAndLook(words.network);
    launcher.press(back);
    pressAndLook(words.reports);
    QVERIFY(launcher.pressRow(0));
    pressAndLook(words.open);
    launcher.press(u"◄ "_s + words.reports);
    QVERIFY(launcher.pressRow(1));
    pressAndLook(words.remove);
    launcher.press(words.no);
    launcher.goHome();

    simulate(u"card insert e1 1001 --dual"_s);
    simulate(u"card insert gbe 2001"_s);
    QTRY_COMPARE(launcher.selectorTexts().size(), 4);
    look(u"empty page"_s);
    pressAndLook(words.pcm);
    QProcess::execute(u"dbus-send"_s, {u"--session"_s, u"/"_s, u"zr.card.inserted"_s, u"string:jitter"_s,
                                       u"int32:1"_s, u"string:"_s, u"string:"_s});
    QTRY_VERIFY(launcher.message().contains("jitter"_L1));
    look(u"message"_s);
    launcher.press(words.ok);
    simulate(u"flash insert sda1"_s);
    QTRY_VERIFY(launcher.message().contains("reports"_L1));
    look(u"question about a drive"_s);
    simulate(u"flash mount-failed 127"_s);
    QTRY_VERIFY(launcher.message().contains("127"_L1));
    look(u"mount error"_s);
    launcher.press(words.ok);
    launcher.press(words.no);
    simulate(u"flash remove"_s);

    launcher.press(words.settings);
    pressAndLook(u"iconNotice"_s);
    QCOMPARE(launcher.shownPage(), u"NoticeWindow"_s);
    pressAndLook(u"buttonSave"_s);
    QVERIFY2(clipped.isEmpty(), qPrintable(clipped.join(u'\n')));
}

void ClippedTextsTest::longNameIsFound() {
    // Without this, a recorder that sees nothing would find every screen whole.
    configure(u"outside"_s);
    config.set(u"paths/main"_s, QString(200, u'W'));
    config.addPlugin(u"outside"_s, {.row = 2, .file = QStringLiteral(E2E_OUTSIDE_PLUGIN)});
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QVERIFY(launcher.clippedTexts().isEmpty());
    QVERIFY(launcher.press(u"Outside"_s));
    QCOMPARE(launcher.clippedTexts().filter(u"LauncherHeader"_s).size(), 1);
}

QTEST_GUILESS_MAIN(ClippedTextsTest)
#include "tst_clippedtexts.moc"
