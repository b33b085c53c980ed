// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "notifysocket.h"
#include "slowexport.h"
#include "testconfig.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 year = 365 * 24 * 3600;
const QString launcherProgram = QStringLiteral(E2E_TREE "/bin/zr-launcher");

} // namespace

/// The installed launcher under a wall clock that is set while it runs. The machine's own is left alone.
class InstalledClockTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void clockIsRightWithTheNextMinute_data();
    void clockIsRightWithTheNextMinute();
    void workGoesOn_data();
    void workGoesOn();
    void crashesAreCountedWithinARealMinute_data() { addJumps(); }
    void crashesAreCountedWithinARealMinute();

private:
    static void addJumps() {
        QTest::addColumn<qint64>("jump");
        QTest::newRow("a year forward") << year;
        QTest::newRow("a year back") << -year;
    }
    static bool simulate(const QString &words) { return LauncherProcess::simulate(words); }
    static QString host(const QString &path) { return qEnvironmentVariable("ZR_SYSROOT") + path; }
    /// Puts the wall clock so far from the machine's.
    void setClock(qint64 seconds) const;
    void startWithEverythingAtWork(const NotifySocket &manager);
    void signsOfLifeGoOn(NotifySocket &manager);
    void batteryAndLampsAreFollowed();

    TestConfig config;
    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledClockTest::init() {
    config = TestConfig();
    config.set(u"paths/main"_s, u"reports"_s);
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    QVERIFY(QDir().mkpath(host(u"/var/run/tester"_s)));
    directory = std::make_unique<QTemporaryDir>();
    launcher = std::make_unique<LauncherProcess>();
    launcher->preload(QStringLiteral(CLOCK_JUMP_LIBRARY));
    launcher->environment.insert(u"CLOCK_JUMP"_s, directory->filePath(u"jump"_s));
    setClock(0);
}

void InstalledClockTest::cleanup() {
    launcher.reset();
    QVERIFY(LauncherProcess::removeCards());
    // Most tests have none.
    static_cast<void>(simulate(u"flash remove"_s));
}

void InstalledClockTest::setClock(qint64 seconds) const {
    QFile file(directory->filePath(u"jump"_s));
    // In place: the launcher has it in its memory.
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write(reinterpret_cast<const char *>(&seconds), sizeof seconds);
}

void InstalledClockTest::clockIsRightWithTheNextMinute_data() {
    QTest::addColumn<qint64>("jump");
    // The new minutes do not begin when the old ones did: ten seconds after the first tick, not sixty.
    QTest::newRow("a year and 50 s forward") << year + 50;
    QTest::newRow("a year and 10 s back") << -year - 10;
}

void InstalledClockTest::clockIsRightWithTheNextMinute() {
    QFETCH(qint64, jump);
    // The next minute is near, but not before the launcher is up.
    const qint64 toSecond40 = 40 - QTime::currentTime().second();
    setClock(toSecond40);
    QVERIFY2(launcher->start(), launcher->errors());
    QTRY_VERIFY(launcher->isScreenUpToDate());
    setClock(toSecond40 + jump);
    QVERIFY(!launcher->isScreenUpToDate());
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY_WITH_TIMEOUT(launcher->isScreenUpToDate(), 25'000);
    qInfo("right after %lld ms; 60 s at most", static_cast<long long>(clock.elapsed()));

    const auto minute = [&] { return (QDateTime::currentSecsSinceEpoch() + toSecond40 + jump) / 60; };
    const qint64 minuteThen = minute();
    QTRY_VERIFY_WITH_TIMEOUT(minute() > minuteThen, 15'000);
    QTRY_VERIFY_WITH_TIMEOUT(launcher->isScreenUpToDate(), 20'000);
}

void InstalledClockTest::workGoesOn_data() {
    addJumps();
    QTest::newRow("not at all, to compare") << qint64(0);
}

void InstalledClockTest::workGoesOn() {
    QFETCH(qint64, jump);
    const SlowExport slowExport(*launcher);
    NotifySocket manager;
    startWithEverythingAtWork(manager);
    const int progress = slowExport.begin();
    QVERIFY(progress > 0);

    setClock(jump);
    QElapsedTimer sinceTheJump;
    sinceTheJump.start();
    QTRY_VERIFY(launcher->progress() > progress);
    signsOfLifeGoOn(manager);
    batteryAndLampsAreFollowed();
    // The signs of life are read as they come: a socket that is full makes the launcher wait.
    QTRY_VERIFY_WITH_TIMEOUT(!manager.messages().isEmpty() && launcher->message().isEmpty(),
                             SlowExport::longestCopyMs);
    qInfo("end of the export after %lld ms", static_cast<long long>(sinceTheJump.elapsed()));
    QVERIFY(slowExport.isWholeAt(host(u"/media/sda1"_s)));
    QVERIFY(launcher->press(u"Сигнализация"_s));
    QTRY_COMPARE(launcher->caption(), u"Сигнализация"_s);
    QCOMPARE(launcher->stop(), 0);
}

void InstalledClockTest::startWithEverythingAtWork(const NotifySocket &manager) {
    launcher->environment.insert(u"NOTIFY_SOCKET"_s, manager.path());
    launcher->environment.insert(u"WATCHDOG_USEC"_s, u"4000000"_s);
    QVERIFY(simulate(u"battery set 76"_s));
    QVERIFY(simulate(u"card insert e1 101 --dual"_s));
    QVERIFY2(launcher->start(), launcher->errors());
    QTRY_VERIFY(launcher->paintedTexts(u"StatusLabel"_s).contains(u"76%"_s));
    QVERIFY(simulate(u"flash insert sda1"_s));
}

void InstalledClockTest::signsOfLifeGoOn(NotifySocket &manager) {
    const qsizetype before = manager.messages().count("WATCHDOG=1");
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY_WITH_TIMEOUT(manager.messages().count("WATCHDOG=1") >= before + 2, 10'000);
    qInfo("two signs of life in %lld ms", static_cast<long long>(clock.elapsed()));
}

void InstalledClockTest::batteryAndLampsAreFollowed() {
    QElapsedTimer clock;
    clock.start();
    QVERIFY(simulate(u"battery set 50"_s));
    QTRY_VERIFY(launcher->paintedTexts(u"StatusLabel"_s).contains(u"50%"_s));
    const qint64 untilTheBattery = clock.elapsed();
    clock.start();
    QVERIFY(simulate(u"card alarm e1-101 LOS present"_s));
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));
    qInfo("charge shown after %lld ms, lamp after %lld ms", static_cast<long long>(untilTheBattery),
          static_cast<long long>(clock.elapsed()));
}

void InstalledClockTest::crashesAreCountedWithinARealMinute() {
    QFETCH(qint64, jump);
    const QString library = QStringLiteral(E2E_FAULTY_DIR "/libfaultyconstructor.so");
    config.setCollection(u"zr"_s, u"probe faulty"_s);
    config.addPlugin(u"faulty"_s, {.file = library});
    QElapsedTimer clock;
    clock.start();
    for (int number = 1; number <= 3; ++number) {
        LauncherProcess start;
        start.program = QStringLiteral(E2E_TREE "/bin/zr-start");
        start.environment = launcher->environment;
        start.environment.insert(u"XDG_RUNTIME_DIR"_s, directory->path());
        QCOMPARE(start.runToEnd({launcherProgram}), 1);
        QCOMPARE(start.errors().contains("The plug-in " + library.toUtf8() + " is left out"), number == 3);
        setClock(number * jump);
    }
    qInfo("three crashes in %lld ms", static_cast<long long>(clock.elapsed()));
    QVERIFY2(clock.elapsed() < 60'000, "the crashes themselves were not within a minute");
}

QTEST_GUILESS_MAIN(InstalledClockTest)
#include "tst_installedclock.moc"
