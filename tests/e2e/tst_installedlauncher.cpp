// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The installed launcher with its shipped plug-ins. Its texts are Russian, as the catalogue has them.
class InstalledLauncherTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void instrumentThatWasNeverConfiguredShowsTheShippedPlugins();
    void screenIsAsHighAsTheFramebuffer_data();
    void screenIsAsHighAsTheFramebuffer();
    void userGoesInAndOut();
    void pluginBuiltOutsideIsLoaded();
    void damagedConfigurationDoesNotStopTheStart();
    void badPluginsDoNotStopTheStart();
    void runsOnAnXServer();
    void runsAsAVncServer();
    void missingCatalogueIsToldAndTextsAreEnglish();

private:
    static void addProbe(TestConfig &config, const QString &otherGroups);

    TestConfig config;
};

void InstalledLauncherTest::init() {
    config = TestConfig();
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/dev"_L1).removeRecursively();
}

/// The shipped groups stay where they are, in the tree's own configuration; only the list is the user's.
void InstalledLauncherTest::addProbe(TestConfig &config, const QString &otherGroups) {
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, "probe "_L1 + otherGroups);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
}

void InstalledLauncherTest::instrumentThatWasNeverConfiguredShowsTheShippedPlugins() {
    // Only the list names the probe; path, groups and all else come from the installed tree.
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    QFile::remove(plugins + "libprobe.so"_L1);
    QVERIFY(QFile::link(QStringLiteral(E2E_PROBE), plugins + "libprobe.so"_L1));
    config.setCollection(u"zr"_s, u"system network reports sound night refresh probe"_s);
    config.addPlugin(u"probe"_s, {.file = u"libprobe.so"_s});
    LauncherProcess launcher;
    launcher.environment.remove(u"XDG_CONFIG_DIRS"_s);
    QVERIFY2(launcher.start(), launcher.errors());
    QVERIFY(QFile::remove(plugins + "libprobe.so"_L1));
    QCOMPARE(launcher.selectorTexts(), QStringList{u"Настройки"_s});
    QCOMPARE(launcher.iconTexts().size(), 5);
    QVERIFY2(!launcher.errors().contains("not found"), launcher.errors());
    QVERIFY2(!launcher.errors().contains("failed"), launcher.errors());
}

void InstalledLauncherTest::screenIsAsHighAsTheFramebuffer_data() {
    QTest::addColumn<int>("framebuffer");
    QTest::addColumn<QString>("height");
    QTest::newRow("no framebuffer") << 0 << u"600"_s;
    QTest::newRow("480 lines") << 480 << u"480"_s;
    QTest::newRow("600 lines") << 600 << u"600"_s;
}

void InstalledLauncherTest::screenIsAsHighAsTheFramebuffer() {
    QFETCH(int, framebuffer);
    QFETCH(QString, height);
    addProbe(config, u""_s);
    LauncherProcess launcher;
    if (framebuffer)
        launcher.setScreenHeight(framebuffer);
    QVERIFY2(launcher.start(), launcher.errors());
    QCOMPARE(launcher.windowSize(), QStringList({u"800"_s, height}));
}

void InstalledLauncherTest::userGoesInAndOut() {
    addProbe(config, u"system refresh"_s);
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config.addPlugin(u"system"_s, {.file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());

    QCOMPARE(launcher.shownPage(), u"pageLauncher"_s);
    QCOMPARE(launcher.backButtonText(), QString());
    const QString icon = launcher.iconTexts().value(0);
    QVERIFY(launcher.press(icon));
    const QString systemPage = launcher.shownPage();
    QVERIFY(systemPage != "pageLauncher"_L1);
    QCOMPARE(launcher.backButtonText(), u"◄ Настройки"_s);
    QVERIFY(launcher.isVisible(u"labelReport"_s));

    QVERIFY(launcher.press(u"labelSettings"_s));
    const QString refreshPage = launcher.shownPage();
    QVERIFY(refreshPage != systemPage);
    QVERIFY(refreshPage != "pageLauncher"_L1);

    QVERIFY(launcher.press(u"◄ Настройки"_s));
    QCOMPARE(launcher.shownPage(), systemPage);
    QVERIFY(launcher.press(u"◄ Настройки"_s));
    QCOMPARE(launcher.shownPage(), u"pageLauncher"_s);
    QCOMPARE(launcher.caption(), u"Настройки"_s);

    QVERIFY(launcher.press(icon));
    QVERIFY(launcher.press(u"labelSettings"_s));
    launcher.goHome();
    QCOMPARE(launcher.shownPage(), u"pageLauncher"_s);
}

void InstalledLauncherTest::pluginBuiltOutsideIsLoaded() {
    addProbe(config, u"outside"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    config.addPlugin(u"outside"_s, {.row = 2, .file = QStringLiteral(E2E_OUTSIDE_PLUGIN)});
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QVERIFY(launcher.press(u"Outside"_s));
    QCOMPARE(launcher.shownPage(), u"window outside"_s);
    QCOMPARE(launcher.caption(), u"Настройки: reports"_s);
}

void InstalledLauncherTest::damagedConfigurationDoesNotStopTheStart() {
    // The defaults bring the probe in, so that it can be seen that they hold.
    addProbe(config, u""_s);
    const QString user = qEnvironmentVariable("XDG_CONFIG_HOME") + "/talvenor/zr-launcher.conf"_L1;
    const QString system = qEnvironmentVariable("XDG_CONFIG_DIRS") + "/talvenor/zr-launcher.conf"_L1;
    QVERIFY(QDir().mkpath(QFileInfo(system).path()));
    QVERIFY(QFile::rename(user, system));
    QFile damaged(user);
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write(QByteArray(4096, '\0'));
    damaged.close();
    {
        LauncherProcess launcher;
        QVERIFY2(launcher.start(), launcher.errors());
        QTRY_COMPARE(launcher.errors().count("is damaged (line 1 holds a NUL)"), 1);
        QVERIFY(QFile::exists(user + ".damaged"_L1));
    }
    QVERIFY(QFile::remove(system));
}

void InstalledLauncherTest::badPluginsDoNotStopTheStart() {
    addProbe(config, u"ghost missing"_s);
    config.addPlugin(u"missing"_s, {.file = u"nowhere/libmissing.so"_s});
    LauncherProcess launcher;
    QVERIFY2(launcher.start(), launcher.errors());
    QTRY_VERIFY(launcher.errors().contains("Invalid configuration file: group 'ghost' is absent\n"));
    QTRY_VERIFY(launcher.errors().contains("Plugin /nowhere/libmissing.so not found.\n"));
}

void InstalledLauncherTest::runsOnAnXServer() {
    QProcess server;
    server.setProcessChannelMode(QProcess::SeparateChannels);
    server.start(u"Xvfb"_s,
                 {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, u"800x600x24"_s, u"-nolisten"_s, u"tcp"_s});
    QVERIFY(server.waitForReadyRead());
    addProbe(config, u""_s);
    {
        LauncherProcess launcher;
        launcher.environment.insert(u"DISPLAY"_s, u':' + QString::fromLatin1(server.readLine().trimmed()));
        QVERIFY2(launcher.start({u"-platform"_s, u"xcb"_s}), launcher.errors());
        QCOMPARE(launcher.windowSize(), QStringList({u"800"_s, u"600"_s}));
        QTemporaryDir pictures;
        QVERIFY(launcher.grab(pictures.filePath(u"home.png"_s)));
        QCOMPARE(QImage(pictures.filePath(u"home.png"_s)).size(), QSize(800, 600));
    }
    server.terminate();
    server.waitForFinished();
}

void InstalledLauncherTest::runsAsAVncServer() {
    addProbe(config, u""_s);
    QTcpServer portFinder;
    QVERIFY(portFinder.listen(QHostAddress::LocalHost));
    const quint16 port = portFinder.serverPort();
    portFinder.close();
    LauncherProcess launcher;
    QVERIFY2(launcher.start({u"-platform"_s, u"vnc:size=800x600:port=%1"_s.arg(port)}), launcher.errors());
    QCOMPARE(launcher.windowSize(), QStringList({u"800"_s, u"600"_s}));
    QTcpSocket viewer;
    viewer.connectToHost(QHostAddress::LocalHost, port);
    QVERIFY(viewer.waitForReadyRead());
    QVERIFY(viewer.readAll().startsWith("RFB "));
}

void InstalledLauncherTest::missingCatalogueIsToldAndTextsAreEnglish() {
    addProbe(config, u""_s);
    LauncherProcess launcher;
    launcher.program = QStringLiteral(E2E_ENGLISH_LAUNCHER);
    QVERIFY2(launcher.start(), launcher.errors());
    QTRY_VERIFY(launcher.errors().contains("Loading translator... Failed\n"));
    QCOMPARE(launcher.selectorTexts(), QStringList{u"Settings"_s});
}

QTEST_GUILESS_MAIN(InstalledLauncherTest)
#include "tst_installedlauncher.moc"
