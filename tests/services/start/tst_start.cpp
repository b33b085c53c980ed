// SPDX-License-Identifier: GPL-3.0-or-later
#include "startstate.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <memory>
#include <signal.h>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// The program as the unit runs it, with a script in the launcher's place.
class StartTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void exitStatusIsThatOfTheLauncher_data();
    void exitStatusIsThatOfTheLauncher();
    void missingLauncherIsTold();
    void errorOutputPassesUnchanged();
    void floodPassesInBoundedMemory();
    void environmentPasses();
    void signalReachesTheLauncher_data();
    void signalReachesTheLauncher();
    void pluginIsLeftOutAfterThreeCrashes();
    void crashOfTheLauncherItselfLeavesNothingOut();
    void orderlyEndIsNoCrash();
    void furtherPluginIsLeftOutAfterThreeMore();
    void nextStartOfTheMachineTriesAllAgain();
    void settingsOfSuchARunStay();
    void damagedMemoryIsIgnored();
    void withoutRunDirectoryTheLauncherStarts();
    void startAfterFailuresWaitsLonger();
    void failedRunsInARowAreCounted();
    void leavingAPluginOutStartsANewRow();
    void stopEndsThePauseAtOnce();
    void wrongCommandLineIsRefused_data();
    void wrongCommandLineIsRefused();

private:
    struct Outcome {
        int status = -1;
        QByteArray output;
        QByteArray errors;
    };
    std::unique_ptr<QProcess> begin(const QStringList &words) const;
    Outcome run(const QStringList &words) const;
    void crash(const QString &plugin, int times) const;
    QString library(const QString &plugin) const { return directory->filePath("lib"_L1 + plugin + ".so"_L1); }
    static QString listIn(const Outcome &outcome);

    void failRunsBefore(qint64 count) const;

    std::unique_ptr<QTemporaryDir> directory;
    /// What the command line says of the pause after failed runs.
    QStringList pause;
    QProcessEnvironment environment;
};

void StartTest::init() {
    directory = std::make_unique<QTemporaryDir>();
    pause = {u"--longest-pause"_s, u"0"_s};
    environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, directory->filePath(u"config"_s));
    environment.insert(u"XDG_RUNTIME_DIR"_s, directory->filePath(u"run"_s));
    QSettings store(directory->filePath(u"config/talvenor/zr-launcher.conf"_s), QSettings::IniFormat);
    store.setValue(u"plugins/path"_s, directory->path());
    store.setValue(u"plugins/zr"_s, u"clock lamp"_s);
    store.setValue(u"clock/name"_s, u"libclock.so"_s);
    store.setValue(u"clock/row"_s, 4);
    store.setValue(u"lamp/name"_s, u"liblamp.so"_s);
}

std::unique_ptr<QProcess> StartTest::begin(const QStringList &words) const {
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(QStringLiteral(START), pause + QStringList{QStringLiteral(LAUNCHER)} + words);
    return process;
}

StartTest::Outcome StartTest::run(const QStringList &words) const {
    const std::unique_ptr<QProcess> process = begin(words);
    if (!process->waitForFinished() || process->exitStatus() != QProcess::NormalExit)
        return {};
    return {process->exitCode(), process->readAllStandardOutput(), process->readAllStandardError()};
}

void StartTest::crash(const QString &plugin, int times) const {
    for (int number = 0; number < times; ++number) {
        const Outcome outcome = run({u"trace"_s, u"/lib/libc.so.6"_s, library(plugin), u"zr-launcher"_s,
                                     u"end"_s, u"exit"_s, u"1"_s});
        QCOMPARE(outcome.status, 1);
    }
}

QString StartTest::listIn(const Outcome &outcome) {
    for (const QByteArray &line : outcome.output.split('\n')) {
        if (line.startsWith("zr="))
            return QString::fromUtf8(line.sliced(3));
    }
    return {};
}

void StartTest::exitStatusIsThatOfTheLauncher_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<int>("status");
    QTest::newRow("in order") << QStringList() << 0;
    QTest::newRow("status") << QStringList{u"exit"_s, u"7"_s} << 7;
    QTest::newRow("killed") << QStringList{u"kill"_s, u"KILL"_s} << 128 + SIGKILL;
    QTest::newRow("segmentation fault") << QStringList{u"kill"_s, u"SEGV"_s} << 128 + SIGSEGV;
    QTest::newRow("ended itself") << QStringList{u"kill"_s, u"TERM"_s} << 128 + SIGTERM;
}

void StartTest::exitStatusIsThatOfTheLauncher() {
    QFETCH(const QStringList, words);
    QFETCH(const int, status);
    QCOMPARE(run(words).status, status);
}

void StartTest::missingLauncherIsTold() {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(START), {u"/not/there"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 127);
    QVERIFY(process.readAllStandardError().contains("/not/there cannot be started"));
}

void StartTest::errorOutputPassesUnchanged() {
    QCOMPARE(run({u"say"_s, u"one"_s, u"say"_s, u"  [bt]: (x) zwei\tдва"_s}).errors,
             QByteArray("one\n  [bt]: (x) zwei\tдва\n"));
}

void StartTest::floodPassesInBoundedMemory() {
    QProcess process;
    // The address sanitizer keeps what was freed for a while, unless it is told not to.
    environment.insert(u"ASAN_OPTIONS"_s, environment.value(u"ASAN_OPTIONS"_s) + ":quarantine_size_mb=1"_L1);
    process.setProcessEnvironment(environment);
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(QStringLiteral(START), {QStringLiteral(LAUNCHER), u"flood"_s, u"128"_s, u"exit"_s, u"3"_s});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 3);
    rusage usage{};
    QCOMPARE(::getrusage(RUSAGE_CHILDREN, &usage), 0);
    // The largest of all that have ended, in KiB.
    QVERIFY2(usage.ru_maxrss < 100 * 1024, qPrintable(QString::number(usage.ru_maxrss)));
}

void StartTest::environmentPasses() {
    environment.insert(u"NOTIFY_SOCKET"_s, u"/run/notify"_s);
    environment.insert(u"WATCHDOG_PID"_s, u"1"_s);
    environment.insert(u"WATCHDOG_USEC"_s, u"5"_s);
    const QByteArray output =
        run({u"environment"_s, u"NOTIFY_SOCKET"_s, u"environment"_s, u"WATCHDOG_PID"_s, u"environment"_s,
             u"WATCHDOG_USEC"_s, u"environment"_s, u"XDG_CONFIG_HOME"_s})
            .output;
    QCOMPARE(output, "/run/notify\nunset\n5\n" + environment.value(u"XDG_CONFIG_HOME"_s).toUtf8() + '\n');
}

void StartTest::signalReachesTheLauncher_data() {
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status");
    QTest::newRow("asked to end") << SIGTERM << 0;
    QTest::newRow("interrupted") << SIGINT << 128 + SIGINT;
    QTest::newRow("asked for a trace") << SIGSEGV << 5;
}

void StartTest::signalReachesTheLauncher() {
    QFETCH(const int, signal);
    QFETCH(const int, status);
    const std::unique_ptr<QProcess> process = begin({u"wait"_s});
    QVERIFY(process->waitForStarted());
    process->setReadChannel(QProcess::StandardError);
    QTRY_VERIFY(process->canReadLine());
    QCOMPARE(::kill(static_cast<pid_t>(process->processId()), signal), 0);
    QVERIFY(process->waitForFinished());
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(process->exitCode(), status);
}

void StartTest::pluginIsLeftOutAfterThreeCrashes() {
    crash(u"clock"_s, 2);
    QCOMPARE(listIn(run({u"store"_s})), u"clock lamp"_s);
    crash(u"clock"_s, 1);
    const Outcome outcome = run({u"store"_s});
    QCOMPARE(listIn(outcome), u"notice-clock lamp"_s);
    QVERIFY(outcome.output.contains("libnotice1.so"));
    QVERIFY(outcome.errors.contains("The plug-in " + library(u"clock"_s).toUtf8() + " is left out"));
    QFile note(directory->filePath(u"run/zr-launcher/left-out/1.json"_s));
    QVERIFY(note.open(QIODevice::ReadOnly));
    QVERIFY(note.readAll().contains("Clock::tick()"));
}

void StartTest::crashOfTheLauncherItselfLeavesNothingOut() {
    for (int number = 0; number < 4; ++number)
        run({u"trace"_s, u"/bin/zr-launcher"_s, u"end"_s, u"exit"_s, u"1"_s});
    QCOMPARE(listIn(run({u"store"_s})), u"clock lamp"_s);
}

void StartTest::orderlyEndIsNoCrash() {
    for (int number = 0; number < 4; ++number)
        run({u"trace"_s, library(u"clock"_s), u"end"_s, u"exit"_s, u"0"_s});
    QCOMPARE(listIn(run({u"store"_s})), u"clock lamp"_s);
}

void StartTest::furtherPluginIsLeftOutAfterThreeMore() {
    crash(u"clock"_s, 3);
    crash(u"lamp"_s, 2);
    QCOMPARE(listIn(run({u"store"_s})), u"notice-clock lamp"_s);
    crash(u"lamp"_s, 1);
    const Outcome outcome = run({u"store"_s});
    QCOMPARE(listIn(outcome), u"notice-clock notice-lamp"_s);
    QVERIFY(outcome.output.contains("libnotice2.so"));
}

void StartTest::nextStartOfTheMachineTriesAllAgain() {
    crash(u"clock"_s, 3);
    QCOMPARE(listIn(run({u"store"_s})), u"notice-clock lamp"_s);
    QVERIFY(QDir(directory->filePath(u"run"_s)).removeRecursively());
    const Outcome outcome = run({u"store"_s});
    QCOMPARE(listIn(outcome), u"clock lamp"_s);
    QCOMPARE(outcome.errors, QByteArray());
}

void StartTest::settingsOfSuchARunStay() {
    crash(u"clock"_s, 3);
    run({u"set"_s, u"[system]\nrefresh=5"_s, u"add"_s, u"talvenor/other.conf"_s});
    const QSettings store(directory->filePath(u"config/talvenor/zr-launcher.conf"_s), QSettings::IniFormat);
    QCOMPARE(store.value(u"system/refresh"_s).toString(), u"5"_s);
    QCOMPARE(store.value(u"plugins/zr"_s).toString(), u"clock lamp"_s);
    QVERIFY(!store.childGroups().contains(u"notice-clock"_s));
    QVERIFY(QFile::exists(directory->filePath(u"config/talvenor/other.conf"_s)));
}

void StartTest::damagedMemoryIsIgnored() {
    crash(u"clock"_s, 3);
    QFile state(directory->filePath(u"run/zr-launcher/crashes.json"_s));
    QVERIFY(state.resize(state.size() / 2));
    const Outcome outcome = run({u"store"_s});
    QCOMPARE(listIn(outcome), u"clock lamp"_s);
    QVERIFY(outcome.errors.contains("is damaged; it is ignored"));
}

void StartTest::withoutRunDirectoryTheLauncherStarts() {
    environment.remove(u"XDG_RUNTIME_DIR"_s);
    const Outcome outcome = run({u"exit"_s, u"4"_s});
    QCOMPARE(outcome.status, 4);
    QVERIFY(outcome.errors.contains("failures are not remembered"));
}

void StartTest::failRunsBefore(qint64 count) const {
    QVERIFY(QDir().mkpath(directory->filePath(u"run/zr-launcher"_s)));
    writeState(directory->filePath(u"run/zr-launcher/crashes.json"_s), {{}, {}, count});
}

void StartTest::startAfterFailuresWaitsLonger() {
    pause.clear();
    QCOMPARE(run({u"exit"_s, u"1"_s}).errors, QByteArray());
    QElapsedTimer clock;
    clock.start();
    QCOMPARE(run({u"exit"_s, u"1"_s}).errors,
             QByteArray("The launcher failed 1 times in a row; it is started in 1 s.\n"));
    QVERIFY(clock.elapsed() >= 1000);
    clock.start();
    QCOMPARE(run({u"exit"_s, u"0"_s}).errors,
             QByteArray("The launcher failed 2 times in a row; it is started in 2 s.\n"));
    QVERIFY(clock.elapsed() >= 2000);
    // It ended in order.
    QCOMPARE(run({u"exit"_s, u"0"_s}).errors, QByteArray());
}

void StartTest::failedRunsInARowAreCounted() {
    const QString file = directory->filePath(u"run/zr-launcher/crashes.json"_s);
    for (qint64 number = 1; number <= 4; ++number) {
        run({u"kill"_s, u"KILL"_s});
        QCOMPARE(readState(file).failedRuns, number);
    }
    const std::unique_ptr<QProcess> process = begin({u"wait"_s});
    process->setReadChannel(QProcess::StandardError);
    QTRY_VERIFY(process->canReadLine());
    process->terminate();
    QVERIFY(process->waitForFinished());
    QCOMPARE(readState(file).failedRuns, 0);
}

void StartTest::leavingAPluginOutStartsANewRow() {
    crash(u"clock"_s, 2);
    QCOMPARE(readState(directory->filePath(u"run/zr-launcher/crashes.json"_s)).failedRuns, 2);
    crash(u"clock"_s, 1);
    QCOMPARE(readState(directory->filePath(u"run/zr-launcher/crashes.json"_s)).failedRuns, 0);
}

void StartTest::stopEndsThePauseAtOnce() {
    pause.clear();
    failRunsBefore(20);
    const std::unique_ptr<QProcess> process = begin({u"say"_s, u"started"_s});
    process->setReadChannel(QProcess::StandardError);
    QTRY_VERIFY(process->canReadLine());
    QCOMPARE(process->readLine(), "The launcher failed 20 times in a row; it is started in 60 s.\n");
    process->terminate();
    QVERIFY(process->waitForFinished(20000));
    QCOMPARE(process->exitStatus(), QProcess::NormalExit);
    QCOMPARE(process->exitCode(), 0);
    QCOMPARE(process->readAllStandardError(), QByteArray());
}

void StartTest::wrongCommandLineIsRefused_data() {
    QTest::addColumn<QStringList>("words");
    QTest::newRow("nothing") << QStringList();
    QTest::newRow("no launcher") << QStringList{u"--longest-pause"_s, u"5"_s};
    QTest::newRow("no number") << QStringList{u"--longest-pause"_s, u"5s"_s, u"true"_s};
    QTest::newRow("less than nothing") << QStringList{u"--longest-pause"_s, u"-5"_s, u"true"_s};
}

void StartTest::wrongCommandLineIsRefused() {
    QFETCH(const QStringList, words);
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(START), words);
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 2);
    QVERIFY(process.readAllStandardError().startsWith("usage: zr-start"));
}

QTEST_GUILESS_MAIN(StartTest)
#include "tst_start.moc"
