// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "privatebus.h"
#include "testconfig.h"

#include <QDir>
#include <QSettings>
#include <QTest>

#include <unistd.h>

#include <chrono>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int signalsASecond = 10'000;
constexpr auto floodTime = 10s;
constexpr auto longestPress = 2s;
constexpr qint64 mostGrowthKilobytes = 24 * 1024;
constexpr qint64 mostLeftKilobytes = 16 * 1024;

/// What the kernel counts for a process.
class Consumption {
public:
    explicit Consumption(qint64 process) : directory(u"/proc/%1/"_s.arg(process)) {}

    qint64 residentKilobytes() const { return kilobytes("VmRSS:"); }
    /// Since the start, or since forgetHighest().
    qint64 highestKilobytes() const { return kilobytes("VmHWM:"); }
    void forgetHighest() const {
        QFile file(directory + "clear_refs"_L1);
        if (file.open(QIODevice::WriteOnly))
            file.write("5");
    }
    /// Of all its threads, in seconds.
    double processorTime() const {
        const QList<QByteArray> words = content("stat"_L1).split(')').last().simplified().split(' ');
        return (words.value(11).toDouble() + words.value(12).toDouble()) /
               static_cast<double>(sysconf(_SC_CLK_TCK));
    }

private:
    QByteArray content(QLatin1StringView name) const {
        QFile file(directory + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    qint64 kilobytes(const QByteArray &name) const {
        for (const QByteArray &line : content("status"_L1).split('\n')) {
            if (line.startsWith(name))
                return line.simplified().split(' ').value(1).toLongLong();
        }
        return -1;
    }

    QString directory;
};

} // namespace

/// The installed launcher on a bus where a service that has gone wrong talks without end. The probe has another one.
class InstalledFloodTest : public QObject {
    Q_OBJECT

private slots:
    void floodCostsNeitherMemoryNorTheScreen();

private:
    static void simulate(const QString &words, const QProcessEnvironment &environment) {
        QProcess simulator;
        simulator.setProcessEnvironment(environment);
        simulator.start(QStringLiteral(E2E_TREE "/bin/zr-simulator"), words.split(u' '));
        simulator.waitForFinished();
    }
    static QString storedDrive() {
        QSettings store(u"talvenor"_s, u"zr-launcher"_s);
        store.sync();
        return store.value(u"flash/dir"_s).toString();
    }
};

void InstalledFloodTest::floodCostsNeitherMemoryNorTheScreen() {
    const QString infoDirectory = qEnvironmentVariable("ZR_SYSROOT") + "/var/run/tester"_L1;
    QVERIFY(QDir().mkpath(infoDirectory));
    TestConfig config;
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    const PrivateBus bus;
    QVERIFY(!bus.address().isEmpty());
    LauncherProcess launcher;
    launcher.environment.insert(u"PROBE_BUS"_s, qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
    launcher.environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
    const QProcessEnvironment onTheBus = launcher.environment;
    simulate(u"card insert gbe 7"_s, onTheBus);
    QVERIFY2(launcher.start(), launcher.errors());
    QCOMPARE(launcher.selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s}));
    const Consumption consumption(launcher.processId());
    const auto slowestAtRest = launcher.slowestPress(u"Настройки"_s, 1s);
    const qint64 before = consumption.residentKilobytes();
    const double timeBefore = consumption.processorTime();
    consumption.forgetHighest();

    QProcess flood;
    flood.setProcessEnvironment(onTheBus);
    flood.start(QStringLiteral(E2E_BUS_FLOOD),
                {QString::number(signalsASecond), QString::number(floodTime / 1s),
                 QDir(infoDirectory).entryInfoList({u"*.info"_s}).constFirst().filePath()});
    auto slowest = launcher.slowestPress(u"Настройки"_s, 4s);
    simulate(u"card insert e1 501"_s, onTheBus);
    slowest = std::max(slowest, launcher.slowestPress(u"Настройки"_s, 4s));
    // Seen while the flood goes on.
    QVERIFY(flood.state() == QProcess::Running);
    QVERIFY(launcher.selectorTexts().contains(u"ИКМ"_s));
    QTRY_COMPARE_WITH_TIMEOUT(flood.state(), QProcess::NotRunning, 60'000);
    const double processorTime = consumption.processorTime() - timeBefore;
    QCOMPARE(flood.exitCode(), 0);

    QTRY_VERIFY(launcher.errors().contains("The flood of zr.card is over"));
    QTRY_VERIFY(launcher.errors().contains("The flood of zr.flash is over"));
    QCOMPARE(launcher.selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s, u"ИКМ"_s}));
    QCOMPARE(storedDrive(), QString());
    // From now on each announcement counts again.
    simulate(u"card remove gbe-7"_s, onTheBus);
    QTRY_COMPARE(launcher.selectorTexts(), QStringList({u"Настройки"_s, u"ИКМ"_s}));
    QVERIFY(launcher.press(u"ИКМ"_s));
    simulate(u"card alarm e1-501 LOS present"_s, onTheBus);
    QTRY_VERIFY(launcher.leds().contains(u"LOS:3"_s));

    const qint64 highest = consumption.highestKilobytes();
    const qint64 after = consumption.residentKilobytes();
    const QList<QByteArray> sent = flood.readAllStandardOutput().trimmed().split(' ');
    qInfo("%s signals in %s ms; slowest press %lld ms, %lld ms at rest; resident %lld KiB before, %lld at "
          "most, %lld after; %.1f s of processor time",
          sent.value(0).constData(), sent.value(1).constData(), static_cast<long long>(slowest.count()),
          static_cast<long long>(slowestAtRest.count()), static_cast<long long>(before),
          static_cast<long long>(highest), static_cast<long long>(after), processorTime);
    QVERIFY(slowest < longestPress);
    if (MEMORY_IS_MEASURED) {
        QVERIFY(highest - before < mostGrowthKilobytes);
        QVERIFY(after - before < mostLeftKilobytes);
    }
    // Whoever reads the journal afterwards finds something in it.
    QVERIFY(launcher.errors().size() < 100'000);
    QCOMPARE(launcher.stop(), 0);
    simulate(u"card remove e1-501"_s, onTheBus);
}

QTEST_GUILESS_MAIN(InstalledFloodTest)
#include "tst_installedflood.moc"
