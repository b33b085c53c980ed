// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "testconfig.h"
#include "xserver.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The installed launcher on a virtual display, its keys pressed there by another program.
class InstalledKeysTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void brightnessKeyWritesTheFile();
    void informationKeyTogglesThePanel();
    void homeKeyLeadsHomeFromThreeLevels();
    void settingsAreChosenByKeys();
    void homeKeyClosesTheChoiceOfSettings();
    void powerKeyAsksAndObeys();
    void batteryIsShownAndExplained();
    void soundPanelOpensAsOftenAsItIsWanted();

private:
    static QByteArray read(const QString &name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QString root() { return qEnvironmentVariable("ZR_SYSROOT"); }
    static QString sudoLog() { return qEnvironmentVariable("HOME") + "/sudo.log"_L1; }
    void start();
    void openChoiceOfSettings();
    void press(const QString &key) const {
        QTRY_VERIFY(launcher->isActive());
        QVERIFY(display.key({key}));
    }

    TestConfig config;
    XServer display;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledKeysTest::init() {
    QVERIFY(!display.display().isEmpty());
    QVERIFY(LauncherProcess::simulate(u"battery set 76"_s));
    config = TestConfig();
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe system sound refresh"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    config.addPlugin(u"system"_s, {.file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"sound"_s, {.row = 2, .file = plugins + "libsound.so"_L1});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});
    start();
}

void InstalledKeysTest::start() {
    launcher = std::make_unique<LauncherProcess>();
    launcher->environment.insert(u"DISPLAY"_s, display.display());
    QVERIFY2(launcher->start({u"-platform"_s, u"xcb"_s}), launcher->errors());
    QTRY_VERIFY(launcher->isActive());
}

void InstalledKeysTest::cleanup() {
    launcher.reset();
}

void InstalledKeysTest::brightnessKeyWritesTheFile() {
    const QString directory = root() + "/sys/devices/platform/pmmcu.0"_L1;
    QVERIFY(QDir().mkpath(directory));
    QVERIFY(QFile(directory + "/brightness"_L1).open(QIODevice::WriteOnly));
    // A plug-in's shortcut on the same key is not asked.
    launcher->showShortcutWindow();
    QCOMPARE(launcher->shownPage(), u"window with a shortcut"_s);
    press(u"F3"_s);
    QTRY_COMPARE(read(directory + "/brightness"_L1), QByteArray("255"));
    QCOMPARE(launcher->shortcuts(), 0);
    press(u"F3"_s);
    QTRY_COMPARE(read(directory + "/brightness"_L1), QByteArray("1"));
}

void InstalledKeysTest::informationKeyTogglesThePanel() {
    QCOMPARE(launcher->shownPopup(), QString());
    press(u"F4"_s);
    QTRY_COMPARE(launcher->shownPopup(), u"StatusPanel"_s);
    // The panel is open and has the keys; the instrument's go first all the same.
    press(u"F4"_s);
    QTRY_COMPARE(launcher->shownPopup(), QString());
}

void InstalledKeysTest::homeKeyLeadsHomeFromThreeLevels() {
    QVERIFY(launcher->press(launcher->iconTexts().value(0)));
    QVERIFY(launcher->press(u"labelSettings"_s));
    QVERIFY(launcher->shownPage() != "pageLauncher"_L1);
    QVERIFY(launcher->press(u"labelBattery"_s));
    QTRY_COMPARE(launcher->shownPopup(), u"StatusPanel"_s);
    press(u"Home"_s);
    QTRY_COMPARE(launcher->shownPage(), u"pageLauncher"_s);
}

void InstalledKeysTest::openChoiceOfSettings() {
    launcher.reset();
    config.set(u"system/settings"_s, u"refresh network"_s);
    config.setCollection(u"zr"_s, u"probe system network refresh"_s);
    config.addPlugin(u"network"_s, {.row = 2,
                                    .file = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR
                                                                    "/zr-launcher/plugins/libnetwork.so")});
    start();
    QVERIFY(launcher->press(u"Система"_s));
    QVERIFY(launcher->press(u"labelSettings"_s));
    QTRY_COMPARE(launcher->shownPopup(), u"VBoxPopup"_s);
}

void InstalledKeysTest::settingsAreChosenByKeys() {
    openChoiceOfSettings();
    press(u"Escape"_s);
    QTRY_COMPARE(launcher->shownPopup(), QString());
    QCOMPARE(launcher->shownPage(), u"SystemWindow"_s);
    QVERIFY(launcher->press(u"labelSettings"_s));
    QTRY_COMPARE(launcher->shownPopup(), u"VBoxPopup"_s);
    press(u"Down"_s);
    press(u"Return"_s);
    QTRY_COMPARE(launcher->shownPage(), u"NetworkWindow"_s);
    QCOMPARE(launcher->shownPopup(), QString());
}

void InstalledKeysTest::homeKeyClosesTheChoiceOfSettings() {
    openChoiceOfSettings();
    press(u"Home"_s);
    QTRY_COMPARE(launcher->shownPage(), u"pageLauncher"_s);
    QCOMPARE(launcher->shownPopup(), QString());
}

void InstalledKeysTest::powerKeyAsksAndObeys() {
    QFile::remove(sudoLog());
    press(u"Pause"_s);
    QTRY_COMPARE(launcher->message(), u"Вы действительно хотите выключить прибор?"_s);
    press(u"Pause"_s);
    press(u"Escape"_s);
    QTRY_COMPARE(launcher->message(), QString());
    QVERIFY(!QFile::exists(sudoLog()));
    press(u"Pause"_s);
    QTRY_VERIFY(!launcher->message().isEmpty());
    QVERIFY(launcher->press(u"Нет"_s));
    QTRY_COMPARE(launcher->message(), QString());
    QVERIFY(!QFile::exists(sudoLog()));
    press(u"Pause"_s);
    QTRY_VERIFY(!launcher->message().isEmpty());
    QVERIFY(launcher->press(u"Да"_s));
    QTRY_COMPARE(read(sudoLog()), QByteArray("/sbin/shutdown -h now\n"));
    QTRY_COMPARE(launcher->message(), QString());
}

void InstalledKeysTest::batteryIsShownAndExplained() {
    QTRY_VERIFY(launcher->hasPicture(u"labelBattery"_s));
    QVERIFY(launcher->press(u"labelBattery"_s));
    QTRY_COMPARE(launcher->shownPopup(), u"StatusPanel"_s);
}

void InstalledKeysTest::soundPanelOpensAsOftenAsItIsWanted() {
    for (int i = 0; i < 2; ++i) {
        QVERIFY(launcher->press(u"Звук"_s));
        QTRY_COMPARE(launcher->shownPopup(), u"VolumePanel"_s);
        launcher->closePopup();
        QTRY_COMPARE(launcher->shownPopup(), QString());
    }
    // Its library is unmapped at the end, with the panel open.
    QVERIFY(launcher->press(u"Звук"_s));
}

QTEST_GUILESS_MAIN(InstalledKeysTest)
#include "tst_installedkeys.moc"
