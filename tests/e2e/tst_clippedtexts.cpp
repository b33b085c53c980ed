// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "standinprograms.h"
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
    QString system, network, refresh, reports, sound, open, remove, no, yes, ok, pcm, signaling, settings;
};

const Words english{u"System"_s, u"Network"_s,   u"Refresh rate"_s, u"Reports"_s, u"Sound"_s,
                    u"Open"_s,   u"Delete"_s,    u"No"_s,           u"Yes"_s,     u"OK"_s,
                    u"PCM"_s,    u"Signaling"_s, u"Settings"_s};
const Words russian{u"Система"_s,  u"Сеть"_s, u"Период обновления"_s,
                    u"Отчёты"_s,   u"Звук"_s, u"Открыть"_s,
                    u"Удалить"_s,  u"Нет"_s,  u"Да"_s,
                    u"ОК"_s,       u"ИКМ"_s,  u"Сигнализация"_s,
                    u"Настройки"_s};

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

void announce(const QStringList &signal) {
    QProcess::execute(u"dbus-send"_s, QStringList{u"--session"_s, u"/"_s} + signal);
}

/// A launcher, and what is cut off on the screens that it was led to.
class Walk {
public:
    explicit Walk(const Words &words_) : words(words_) {}

    void look(const QString &screen) {
        for (const QString &text : launcher.clippedTexts())
            clipped.append(screen + ": "_L1 + text);
    }
    void press(const QString &nameOrText) {
        if (!launcher.press(nameOrText))
            clipped.append(nameOrText + " cannot be pressed"_L1);
    }
    void pressAndLook(const QString &nameOrText) {
        press(nameOrText);
        look(nameOrText);
    }
    void goBackTo(const QString &title) { press(u"◄ "_s + title); }

    LauncherProcess launcher;
    const Words words;
    QStringList clipped;
};

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
    void configureShippedPlugins();

    // Each begins and ends on a page of icons.
    static void lookAtFunctions(Walk &walk);
    static void lookAtReports(Walk &walk);
    static void lookAtCards(Walk &walk);
    void lookAtDrives(Walk &walk);
    static void lookAtKeys(Walk &walk);
    static void lookAtNotice(Walk &walk);

    TestConfig config;
    std::unique_ptr<StandInPrograms> programs;
};

void ClippedTextsTest::init() {
    config = TestConfig();
    programs = std::make_unique<StandInPrograms>();
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
    QVERIFY(LauncherProcess::removeCards());
    // Only a walk that was cut short leaves one.
    static_cast<void>(LauncherProcess::simulate(u"flash remove"_s));
    programs.reset();
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/dev"_L1).removeRecursively();
}

void ClippedTextsTest::configure(const QString &otherGroups) {
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, otherGroups + " probe"_L1);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
}

void ClippedTextsTest::configureShippedPlugins() {
    configure(u"system network reports sound night refresh reflectometer"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config.addPlugin(u"system"_s, {.file = plugins + "libsystem.so"_L1, .settings = u"refresh network"_s});
    config.addPlugin(u"network"_s, {.row = 2, .file = plugins + "libnetwork.so"_L1});
    config.addPlugin(u"reports"_s, {.version = 1, .column = 2, .file = plugins + "libreports.so"_L1});
    config.addPlugin(u"sound"_s, {.row = 2, .column = 2, .file = plugins + "libsound.so"_L1});
    config.addPlugin(u"night"_s, {.row = 3, .column = 2, .file = plugins + "libnight.so"_L1});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});

    const QString crashing = u"/nowhere/libreflectometer.so"_s;
    config.addPlugin(u"reflectometer"_s, {.row = 4, .file = crashing});
    leaveOut(crashing);
}

void ClippedTextsTest::everyTextIsShownWhole_data() {
    QTest::addColumn<bool>("isRussian");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("battery");
    QTest::newRow("English, 480") << false << 480 << u"76 charging"_s;
    QTest::newRow("English, 600") << false << 600 << u"-1 absent"_s;
    QTest::newRow("Russian, 480") << true << 480 << u"76 charging"_s;
    QTest::newRow("Russian, 600") << true << 600 << u"-1 absent"_s;
}

void ClippedTextsTest::everyTextIsShownWhole() {
    QFETCH(bool, isRussian);
    QFETCH(int, height);
    QFETCH(QString, battery);
    configureShippedPlugins();
    QVERIFY(LauncherProcess::simulate("battery set "_L1 + battery));

    Walk walk(isRussian ? russian : english);
    LauncherProcess &launcher = walk.launcher;
    launcher.setScreenHeight(height);
    const QString program = isRussian ? launcher.program : QStringLiteral(E2E_ENGLISH_LAUNCHER);
    launcher.program = QStringLiteral(E2E_TREE "/bin/zr-start");
    QVERIFY2(launcher.start({program}), launcher.errors());
    QCOMPARE(launcher.windowSize().last(), QString::number(height));
    QTRY_VERIFY(launcher.hasPicture(u"labelBattery"_s));

    walk.look(u"home"_s);
    lookAtFunctions(walk);
    lookAtReports(walk);
    lookAtCards(walk);
    lookAtDrives(walk);
    lookAtKeys(walk);
    lookAtNotice(walk);
    QVERIFY2(walk.clipped.isEmpty(), qPrintable(walk.clipped.join(u'\n')));
}

void ClippedTextsTest::lookAtFunctions(Walk &walk) {
    const Words &words = walk.words;
    LauncherProcess &launcher = walk.launcher;
    walk.pressAndLook(u"labelBattery"_s);
    launcher.closePopup();
    walk.pressAndLook(words.sound);
    launcher.closePopup();
    QVERIFY(launcher.pressWithKey(words.sound));
    QCOMPARE(launcher.shownPopup(), u"VolumePanel"_s);
    walk.look(u"volume panel opened by a key"_s);
    launcher.closePopup();
    walk.pressAndLook(u"labelInfo"_s);
    walk.press(u"labelInfo"_s);
    walk.pressAndLook(words.network);
    walk.goBackTo(words.settings);

    walk.pressAndLook(words.system);
    walk.pressAndLook(u"labelReport"_s);
    walk.press(u"labelReport"_s);
    walk.pressAndLook(u"rowStorage"_s);
    // The mount points are those of the machine that runs the test; the table shortens them as it must.
    walk.clipped.removeIf([](const QString &text) { return text.contains("viewport: /"_L1); });
    walk.goBackTo(words.system);
    walk.pressAndLook(u"labelSettings"_s);
    QCOMPARE(launcher.shownPopup(), u"VBoxPopup"_s);
    walk.pressAndLook(words.refresh);
    QCOMPARE(launcher.shownPage(), u"RefreshWindow"_s);
    launcher.goHome();
}

void ClippedTextsTest::lookAtReports(Walk &walk) {
    const Words &words = walk.words;
    walk.pressAndLook(words.reports);
    for (const int row : {0, 1}) {
        QVERIFY(walk.launcher.pressRow(row));
        walk.pressAndLook(words.open);
        walk.goBackTo(words.reports);
    }
    QVERIFY(walk.launcher.pressRow(1));
    walk.pressAndLook(words.remove);
    walk.press(words.no);
    walk.launcher.goHome();
}

void ClippedTextsTest::lookAtCards(Walk &walk) {
    const Words &words = walk.words;
    LauncherProcess &launcher = walk.launcher;
    QVERIFY(LauncherProcess::simulate(u"card insert e1 1001 --dual"_s));
    QVERIFY(LauncherProcess::simulate(u"card insert gbe 2001"_s));
    QTRY_COMPARE(launcher.selectorTexts().size(), 4);
    walk.look(u"empty page"_s);
    walk.pressAndLook(words.pcm);
    announce({u"zr.card.inserted"_s, u"string:jitter"_s, u"int32:1"_s, u"string:"_s, u"string:"_s});
    QTRY_VERIFY(launcher.message().contains("jitter"_L1));
    walk.look(u"unknown card"_s);
    walk.press(words.ok);
    QVERIFY(LauncherProcess::simulate(u"card hang e1-1001"_s));
    walk.press(words.signaling);
    QTRY_VERIFY(launcher.message().contains("operation sa"_L1));
    walk.look(u"card that does not answer"_s);
    walk.press(words.ok);
    QVERIFY(LauncherProcess::simulate(u"card resume e1-1001"_s));
}

void ClippedTextsTest::lookAtDrives(Walk &walk) {
    const Words &words = walk.words;
    LauncherProcess &launcher = walk.launcher;
    const auto insert = [&launcher] {
        QVERIFY(LauncherProcess::simulate(u"flash insert sda1"_s));
        QTRY_VERIFY(launcher.message().contains("reports"_L1));
    };
    insert();
    walk.look(u"question about a drive"_s);
    QVERIFY(LauncherProcess::simulate(u"flash mount-failed 127"_s));
    QTRY_VERIFY(launcher.message().contains("127"_L1));
    walk.look(u"mount error"_s);
    walk.press(words.ok);
    announce({u"zr.flash.inserted"_s, u"string:sdb1"_s});
    QTRY_VERIFY(!launcher.message().contains("reports"_L1));
    walk.look(u"second drive"_s);
    walk.press(words.ok);

    programs->put(u"rsync"_s, "exec sleep 100");
    walk.press(words.yes);
    QTRY_VERIFY(launcher.progress() >= 0);
    walk.look(u"copying"_s);
    QVERIFY(LauncherProcess::simulate(u"flash remove"_s));
    QTRY_VERIFY(!launcher.message().isEmpty() && launcher.progress() < 0);
    walk.look(u"drive that was pulled"_s);
    walk.press(words.ok);
    QTRY_COMPARE(launcher.message(), QString());
}

void ClippedTextsTest::lookAtKeys(Walk &walk) {
    walk.launcher.pressDeviceKey(Qt::Key_Pause);
    QTRY_VERIFY(!walk.launcher.message().isEmpty());
    walk.look(u"question about power"_s);
    walk.press(walk.words.no);
    QTRY_COMPARE(walk.launcher.message(), QString());
}

void ClippedTextsTest::lookAtNotice(Walk &walk) {
    walk.press(walk.words.settings);
    walk.pressAndLook(u"iconNotice"_s);
    QCOMPARE(walk.launcher.shownPage(), u"NoticeWindow"_s);
    walk.pressAndLook(u"buttonSave"_s);
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
