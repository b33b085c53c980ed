// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "notifysocket.h"
#include "standinprograms.h"
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
constexpr int copyTime = 60'000;

const QString launcherProgram = QStringLiteral(E2E_TREE "/bin/zr-launcher");

/// Is still at work when the clock is set; what slows it down keeps to the machine's own clock.
const QByteArray slowRsync = "exec env -u LD_PRELOAD /usr/bin/rsync --bwlimit=100 \"$@\"";

} // namespace

/// The installed launcher under a wall clock that is set while it runs. The machine's own is left alone.
class InstalledClockTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void clockIsRightWithTheNextMinute_data() { addJumps(); }
    void clockIsRightWithTheNextMinute();
    void workGoesOn_data() { addJumps(); }
    void workGoesOn();
    void crashesAreCountedWithinARealMinute_data() { addJumps(); }
    void crashesAreCountedWithinARealMinute();

private:
    static void addJumps() {
        QTest::addColumn<qint64>("jump");
        QTest::newRow("a year forward") << year;
        QTest::newRow("a year back") << -year;
    }
    static void simulate(const QString &words) {
        QProcess::execute(QStringLiteral(E2E_TREE "/bin/zr-simulator"), words.split(u' '));
    }
    static QString host(const QString &path) { return qEnvironmentVariable("ZR_SYSROOT") + path; }
    static void setCharge(int percentage);
    /// Puts the wall clock so far from the machine's.
    void setClock(qint64 seconds) const;

    TestConfig config;
    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<StandInPrograms> programs;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledClockTest::init() {
    config = TestConfig();
    config.set(u"paths/main"_s, u"reports"_s);
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    for (const QString &path : {u"/proc"_s, u"/var/run/tester"_s})
        QVERIFY(QDir().mkpath(host(path)));
    directory = std::make_unique<QTemporaryDir>();
    programs = std::make_unique<StandInPrograms>();
    launcher = std::make_unique<LauncherProcess>();
    launcher->environment.insert(u"LD_PRELOAD"_s, QStringLiteral(CLOCK_JUMP_LIBRARY));
    launcher->environment.insert(u"CLOCK_JUMP"_s, directory->filePath(u"jump"_s));
    // The sanitizers want to come first themselves.
    launcher->environment.insert(u"ASAN_OPTIONS"_s, launcher->environment.value(u"ASAN_OPTIONS"_s) +
                                                        ":verify_asan_link_order=0"_L1);
    setClock(0);
}

void InstalledClockTest::cleanup() {
    launcher.reset();
    programs.reset();
    simulate(u"card remove e1-101"_s);
    simulate(u"flash remove"_s);
}

void InstalledClockTest::setCharge(int percentage) {
    QFile apm(host(u"/proc/apm"_s));
    QVERIFY(apm.open(QIODevice::WriteOnly));
    apm.write("1.16 1.2 0x03 0x00 0x00 0x01 " + QByteArray::number(percentage) + "% 142 min\n");
}

void InstalledClockTest::setClock(qint64 seconds) const {
    QFile file(directory->filePath(u"jump"_s));
    // In place: the launcher has it in its memory.
    QVERIFY(file.open(QIODevice::ReadWrite));
    file.write(reinterpret_cast<const char *>(&seconds), sizeof seconds);
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
}

void InstalledClockTest::workGoesOn() {
    QFETCH(qint64, jump);
    NotifySocket manager;
    launcher->environment.insert(u"NOTIFY_SOCKET"_s, manager.path());
    launcher->environment.insert(u"WATCHDOG_USEC"_s, u"4000000"_s);
    programs->put(u"rsync"_s, slowRsync);
    const QDir reports(QDir::homePath() + "/reports"_L1);
    QVERIFY(QDir().mkpath(reports.path()));
    for (int i = 0; i < 8; ++i) {
        QFile report(reports.filePath(QString::number(i)));
        QVERIFY(report.open(QIODevice::WriteOnly));
        report.write(QByteArray(50'000, static_cast<char>('a' + i)));
    }
    setCharge(76);
    simulate(u"card insert e1 101 --dual"_s);
    QVERIFY2(launcher->start(), launcher->errors());
    QTRY_VERIFY(launcher->paintedTexts(u"StatusLabel"_s).contains(u"76%"_s));
    simulate(u"flash insert sda1"_s);
    QTRY_VERIFY(launcher->press(u"Да"_s));
    int progress = 0;
    QTRY_VERIFY((progress = launcher->progress()) > 0 && progress < 100);

    setClock(jump);
    const qsizetype pings = manager.messages().count("WATCHDOG=1");
    QTRY_VERIFY(launcher->progress() > progress);
    // Read as they come: a socket that is full makes the launcher wait.
    QTRY_VERIFY(manager.messages().count("WATCHDOG=1") >= pings + 2);
    setCharge(50);
    QTRY_VERIFY(launcher->paintedTexts(u"StatusLabel"_s).contains(u"50%"_s));
    simulate(u"card alarm e1-101 LOS present"_s);
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));
    QTRY_VERIFY_WITH_TIMEOUT(!manager.messages().isEmpty() && launcher->message().isEmpty(), copyTime);
    QCOMPARE(QDir(host(u"/media/sda1/reports"_s)).entryList(QDir::Files), reports.entryList(QDir::Files));
    QVERIFY(launcher->press(u"Сигнализация"_s));
    QTRY_COMPARE(launcher->caption(), u"Сигнализация"_s);
    QCOMPARE(launcher->stop(), 0);
}

void InstalledClockTest::crashesAreCountedWithinARealMinute() {
    QFETCH(qint64, jump);
    const QString library = QStringLiteral(E2E_FAULTY_DIR "/libfaultyconstructor.so");
    config.setCollection(u"zr"_s, u"probe faulty"_s);
    config.addPlugin(u"faulty"_s, {.file = library});
    for (int number = 1; number <= 3; ++number) {
        LauncherProcess start;
        start.program = QStringLiteral(E2E_TREE "/bin/zr-start");
        start.environment = launcher->environment;
        start.environment.insert(u"XDG_RUNTIME_DIR"_s, directory->path());
        QCOMPARE(start.runToEnd({launcherProgram}), 1);
        QCOMPARE(start.errors().contains("The plug-in " + library.toUtf8() + " is left out"), number == 3);
        setClock(number * jump);
    }
}

QTEST_GUILESS_MAIN(InstalledClockTest)
#include "tst_installedclock.moc"
