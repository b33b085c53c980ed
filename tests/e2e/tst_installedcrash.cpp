// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "notifysocket.h"
#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <csignal>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString launcherProgram = QStringLiteral(E2E_TREE "/bin/zr-launcher");

QByteArray read(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray libraryOf(const QString &plugin) {
    return QByteArray(E2E_FAULTY_DIR "/lib") + plugin.toUtf8() + ".so";
}

QByteArray usersFile() {
    return read(qEnvironmentVariable("XDG_CONFIG_HOME") + "/talvenor/zr-launcher.conf"_L1);
}

QDir reports() {
    return QDir(QDir::homePath() + "/reports"_L1);
}

} // namespace

/// The installed launcher under the installed start program, with plug-ins that really crash it.
class InstalledCrashTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void crashingPluginIsLeftOut_data();
    void crashingPluginIsLeftOut();
    void noticeShowsAndSavesTheTrace();
    void settingOfSuchARunStays();
    void nextStartOfTheMachineTriesAllAgain();
    void twoFaultyPluginsAreLeftOut();
    void pluginWithoutNamesIsFoundWhileItIsLoaded();
    void pluginWithoutNamesIsNotFoundLater();
    void deathWithoutATraceLeavesOutThePluginBeingLoaded_data();
    void deathWithoutATraceLeavesOutThePluginBeingLoaded();
    void deathWithoutATraceOnAPressLeavesNothingOut();
    void memoryThatRunsOutDropsThePluginBeingLoaded();
    void memoryThatRunsOutOnAPressEndsTheLauncher();
    void stopEndsTheLauncherInOrder();
    void managerHearsTheLauncherItself();

private:
    struct End {
        int status = -1;
        QByteArray errors;
    };
    /// The faulty plug-ins between others that are sound; the probe comes first.
    void configure(const QStringList &faulty);
    std::unique_ptr<LauncherProcess> makeStart() const;
    End crashOnce(const QString &pressed = {}) const;
    void crashThreeTimes(const QString &plugin, const QString &pressed = {}) const;
    static bool startWithLimitedMemory(LauncherProcess &launcher);
    static QString noticeIn(LauncherProcess &launcher, const QString &plugin);

    TestConfig config;
    std::unique_ptr<QTemporaryDir> runDirectory;
};

void InstalledCrashTest::init() {
    runDirectory = std::make_unique<QTemporaryDir>();
    reports().removeRecursively();
}

void InstalledCrashTest::configure(const QStringList &faulty) {
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config = TestConfig();
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    // What the launcher stores at every end.
    config.set(u"flash/dir"_s, u""_s);
    config.set(u"flash/save"_s, false);
    config.setCollection(u"zr"_s, u"probe %1 system refresh"_s.arg(faulty.join(u' ')));
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    config.addPlugin(u"system"_s, {.row = 4, .file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});
    unsigned int row = 1;
    for (const QString &plugin : faulty)
        config.addPlugin(plugin, {.row = row++, .file = QString::fromUtf8(libraryOf(plugin))});
}

std::unique_ptr<LauncherProcess> InstalledCrashTest::makeStart() const {
    auto launcher = std::make_unique<LauncherProcess>();
    launcher->program = QStringLiteral(E2E_TREE "/bin/zr-start");
    launcher->environment.insert(u"XDG_RUNTIME_DIR"_s, runDirectory->path());
    return launcher;
}

InstalledCrashTest::End InstalledCrashTest::crashOnce(const QString &pressed) const {
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    if (pressed.isEmpty()) {
        const int status = launcher->runToEnd({launcherProgram});
        return {status, launcher->errors()};
    }
    if (!launcher->start({launcherProgram}))
        return {};
    launcher->pressWithoutAnswer(pressed);
    const int status = launcher->waitForEnd();
    return {status, launcher->errors()};
}

void InstalledCrashTest::crashThreeTimes(const QString &plugin, const QString &pressed) const {
    for (int number = 1; number <= 3; ++number) {
        const End end = crashOnce(pressed);
        QVERIFY2(end.status == 1, end.errors);
        QVERIFY2(end.errors.contains(libraryOf(plugin) + '('), end.errors);
        const QByteArray leftOut = "The plug-in " + libraryOf(plugin) + " is left out";
        QCOMPARE(end.errors.count(leftOut), number == 3 ? 1 : 0);
    }
}

QString InstalledCrashTest::noticeIn(LauncherProcess &launcher, const QString &plugin) {
    const QStringList texts = launcher.iconTexts();
    const auto notice =
        std::ranges::find_if(texts, [&plugin](const QString &text) { return text.contains(plugin); });
    return notice == texts.end() ? QString() : *notice;
}

void InstalledCrashTest::crashingPluginIsLeftOut_data() {
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<QString>("pressed");
    QTest::newRow("constructor") << u"faultyconstructor"_s << QString();
    QTest::newRow("icon") << u"faultyicon"_s << QString();
    QTest::newRow("press") << u"faultypress"_s << u"faulty"_s;
    // Only the function that the loader calls has a name.
    QTest::newRow("no names, constructor") << u"faultystripped"_s << QString();
    // Bare frames tell where those belong that have no name.
    QTest::newRow("no names, bare trace") << u"faultystrippedtrace"_s << QString();
}

void InstalledCrashTest::crashingPluginIsLeftOut() {
    QFETCH(QString, plugin);
    QFETCH(QString, pressed);
    configure({plugin});
    const QByteArray before = usersFile();
    crashThreeTimes(plugin, pressed);
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QTRY_COMPARE(launcher->errors().count("The plug-in " + libraryOf(plugin) + " is left out"), 1);
    QCOMPARE(launcher->iconTexts().size(), 2);
    QVERIFY(!noticeIn(*launcher, plugin).isEmpty());
    QVERIFY(!launcher->isVisible(u"faulty"_s));
    QCOMPARE(launcher->stop(), 0);
    QCOMPARE(usersFile(), before);
}

void InstalledCrashTest::noticeShowsAndSavesTheTrace() {
    const QString plugin = u"faultyconstructor"_s;
    configure({plugin});
    crashThreeTimes(plugin);
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QVERIFY(launcher->press(noticeIn(*launcher, plugin)));
    const QString texts = launcher->pageTexts().join(u'\n');
    QVERIFY2(texts.contains(u"libfaultyconstructor.so"_s), qPrintable(texts));
    QVERIFY2(texts.contains(u"writeNowhere()"_s), qPrintable(texts));
    QVERIFY(launcher->press(u"buttonSave"_s));
    const QStringList files = reports().entryList(QDir::Files);
    QCOMPARE(files.size(), 1);
    const QByteArray report = read(reports().filePath(files.first()));
    QVERIFY2(report.contains(libraryOf(plugin)), report);
    QVERIFY2(report.contains("[bt]: ("), report);
    QVERIFY2(report.contains("writeNowhere()"), report);
}

void InstalledCrashTest::settingOfSuchARunStays() {
    const QString plugin = u"faultyconstructor"_s;
    configure({plugin});
    const QString list = QSettings(u"talvenor"_s, u"zr-launcher"_s).value(u"plugins/zr"_s).toString();
    crashThreeTimes(plugin);
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QVERIFY(launcher->press(u"Система"_s));
    QVERIFY(launcher->press(u"labelSettings"_s));
    QVERIFY(launcher->press(u"5 секунд"_s));
    // While the launcher runs: the instrument may be switched off at any moment.
    QTRY_VERIFY2(usersFile().contains("refresh=5"), usersFile());
    QCOMPARE(launcher->stop(), 0);
    const QSettings store(u"talvenor"_s, u"zr-launcher"_s);
    QCOMPARE(store.value(u"plugins/zr"_s).toString(), list);
    QVERIFY(!usersFile().contains("notice"));
}

void InstalledCrashTest::nextStartOfTheMachineTriesAllAgain() {
    const QString plugin = u"faultyicon"_s;
    configure({plugin});
    crashThreeTimes(plugin);
    runDirectory = std::make_unique<QTemporaryDir>();
    // As at the first start: the plug-in is there, and told once it has crashed three times.
    crashThreeTimes(plugin);
}

void InstalledCrashTest::twoFaultyPluginsAreLeftOut() {
    const QStringList plugins{u"faultyconstructor"_s, u"faultyicon"_s};
    configure(plugins);
    for (const QString &plugin : plugins)
        crashThreeTimes(plugin);
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QCOMPARE(launcher->iconTexts().size(), 3);
    for (const QString &plugin : plugins) {
        QVERIFY(launcher->press(noticeIn(*launcher, plugin)));
        QVERIFY(launcher->pageTexts().join(u'\n').contains("lib"_L1 + plugin + ".so"_L1));
        launcher->goHome();
    }
}

void InstalledCrashTest::pluginWithoutNamesIsFoundWhileItIsLoaded() {
    const QString plugin = u"faultystrippedicon"_s;
    configure({plugin});
    for (int number = 0; number < 3; ++number) {
        const End end = crashOnce();
        QCOMPARE(end.status, 1);
        QVERIFY2(end.errors.contains("[bt]: ("), end.errors);
        QVERIFY2(!end.errors.contains(libraryOf(plugin) + '('), end.errors);
    }
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QVERIFY(!noticeIn(*launcher, plugin).isEmpty());
}

void InstalledCrashTest::pluginWithoutNamesIsNotFoundLater() {
    // Clicks by itself: the probe's press would put the probe into the trace, and it would be blamed.
    const QString plugin = u"faultystrippedclick"_s;
    configure({plugin});
    for (int number = 0; number < 4; ++number) {
        const End end = crashOnce();
        QCOMPARE(end.status, 1);
        QVERIFY2(end.errors.contains("[bt]: ("), end.errors);
        QVERIFY2(!end.errors.contains(libraryOf(plugin) + '('), end.errors);
        QVERIFY2(!end.errors.contains("is left out"), end.errors);
    }
}

void InstalledCrashTest::deathWithoutATraceLeavesOutThePluginBeingLoaded_data() {
    QTest::addColumn<QString>("plugin");
    QTest::addColumn<int>("status");
    QTest::newRow("stack overflow") << u"faultyoverflow"_s << 128 + SIGSEGV;
    QTest::newRow("abort") << u"faultyabort"_s << 128 + SIGABRT;
    // As the kernel ends what takes more memory than its unit may have.
    QTest::newRow("killed") << u"faultykill"_s << 128 + SIGKILL;
}

void InstalledCrashTest::deathWithoutATraceLeavesOutThePluginBeingLoaded() {
    QFETCH(QString, plugin);
    QFETCH(int, status);
    configure({plugin});
    for (int number = 1; number <= 3; ++number) {
        const End end = crashOnce();
        QCOMPARE(end.status, status);
        QVERIFY2(!end.errors.contains("[bt]: ("), end.errors);
        QCOMPARE(end.errors.count("The plug-in " + libraryOf(plugin) + " is left out"), number == 3 ? 1 : 0);
    }
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QVERIFY(launcher->press(noticeIn(*launcher, plugin)));
    const QString texts = launcher->pageTexts().join(u'\n');
    QVERIFY2(texts.contains(u"No trace: signal %1 ended"_s.arg(status - 128)), qPrintable(texts));
}

void InstalledCrashTest::deathWithoutATraceOnAPressLeavesNothingOut() {
    const QString plugin = u"faultykillpress"_s;
    configure({plugin});
    for (int number = 0; number < 3; ++number) {
        const End end = crashOnce(u"faulty"_s);
        QCOMPARE(end.status, 128 + SIGKILL);
        QVERIFY2(!end.errors.contains("is left out"), end.errors);
    }
    // It is started again nevertheless, with the plug-in.
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QVERIFY(launcher->isVisible(u"faulty"_s));
}

bool InstalledCrashTest::startWithLimitedMemory(LauncherProcess &launcher) {
    const QString starter = std::exchange(launcher.program, u"prlimit"_s);
    return launcher.start({u"--as=1500000000"_s, starter, launcherProgram});
}

void InstalledCrashTest::memoryThatRunsOutDropsThePluginBeingLoaded() {
    if (!MEMORY_MAY_BE_LIMITED)
        QSKIP("The address sanitizer takes more addresses than the limit leaves.");
    configure({u"faultymemory"_s});
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(startWithLimitedMemory(*launcher), launcher->errors());
    QTRY_COMPARE(launcher->errors().count("/libfaultymemory.so failed: std::bad_alloc"), 1);
    QVERIFY(!launcher->isVisible(u"faulty"_s));
    QVERIFY(launcher->press(u"Система"_s));
    QCOMPARE(launcher->stop(), 0);
}

void InstalledCrashTest::memoryThatRunsOutOnAPressEndsTheLauncher() {
    if (!MEMORY_MAY_BE_LIMITED)
        QSKIP("The address sanitizer takes more addresses than the limit leaves.");
    configure({u"faultymemorypress"_s});
    for (int number = 0; number < 2; ++number) {
        const std::unique_ptr<LauncherProcess> launcher = makeStart();
        QVERIFY2(startWithLimitedMemory(*launcher), launcher->errors());
        launcher->pressWithoutAnswer(u"faulty"_s);
        QCOMPARE(launcher->waitForEnd(), 128 + SIGABRT);
        QVERIFY2(launcher->errors().contains("std::bad_alloc"), launcher->errors());
    }
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
}

void InstalledCrashTest::stopEndsTheLauncherInOrder() {
    configure({});
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    const QString starter = u"/proc/%1"_s.arg(launcher->processId());
    const QByteArray child = read(u"%1/task/%2/children"_s.arg(starter).arg(launcher->processId())).trimmed();
    QVERIFY(!child.isEmpty());
    QVERIFY(QFile::exists("/proc/"_L1 + QString::fromLatin1(child)));
    QCOMPARE(launcher->stop(), 0);
    QVERIFY(!QFile::exists("/proc/"_L1 + QString::fromLatin1(child)));
    QVERIFY(!launcher->errors().contains("[bt]: ("));
}

void InstalledCrashTest::managerHearsTheLauncherItself() {
    configure({});
    NotifySocket manager;
    const std::unique_ptr<LauncherProcess> launcher = makeStart();
    launcher->environment.insert(u"NOTIFY_SOCKET"_s, manager.path());
    // The manager knows the start program's process only.
    launcher->environment.insert(u"WATCHDOG_PID"_s, u"1"_s);
    // Not so often that the socket is full before the test reads it: the launcher would wait for the test.
    launcher->environment.insert(u"WATCHDOG_USEC"_s, u"2000000"_s);
    QVERIFY2(launcher->start({launcherProgram}), launcher->errors());
    QTRY_VERIFY(manager.messages().contains("WATCHDOG=1"));
    QCOMPARE(manager.messages().first(), QByteArray("READY=1"));
    QCOMPARE(launcher->stop(), 0);
    QCOMPARE(manager.messages().last(), QByteArray("STOPPING=1"));
}

QTEST_GUILESS_MAIN(InstalledCrashTest)
#include "tst_installedcrash.moc"
