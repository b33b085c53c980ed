// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "privatebus.h"
#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTest>

#include <unistd.h>

#include <chrono>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int signalsASecond = 10'000;
constexpr auto longestPress = 2s;
constexpr qint64 mostGrowthKilobytes = 24 * 1024;
/// The allocator keeps what the first floods took, and later ones take it again. Were the signals kept, hundreds of bytes each,
/// it would be more.
constexpr qint64 mostGrowthOfManyKilobytes = 32 * 1024;

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
    void init();
    void cleanup() { launcher.reset(); }

    void floodCostsNeitherMemoryNorTheScreen();
    void manyFloodsTakeTheMemoryOfOne();

private:
    static QString storedDrive() {
        QSettings store(u"talvenor"_s, u"zr-launcher"_s);
        store.sync();
        return store.value(u"flash/dir"_s).toString();
    }

    /// The first card that is there is among those that it speaks of.
    void begin(QProcess &flood, std::chrono::seconds time) const {
        flood.setProcessEnvironment(launcher->environment);
        flood.start(QStringLiteral(E2E_BUS_FLOOD),
                    {QString::number(signalsASecond), QString::number(time.count()),
                     QDir(infoDirectory).entryInfoList({u"*.info"_s}).constFirst().filePath()});
    }
    /// The launcher has told the end of so many floods.
    bool areOver(qsizetype floods) const {
        const QByteArray errors = launcher->errors();
        return errors.count("The flood of zr.card is over") == floods &&
               errors.count("The flood of zr.flash is over") == floods;
    }

    const QString infoDirectory = qEnvironmentVariable("ZR_SYSROOT") + "/var/run/tester"_L1;
    TestConfig config;
    const PrivateBus bus;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledFloodTest::init() {
    QVERIFY(QDir().mkpath(infoDirectory));
    config = TestConfig();
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    QVERIFY(!bus.address().isEmpty());
    launcher = std::make_unique<LauncherProcess>();
    launcher->environment.insert(u"PROBE_BUS"_s, qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
    launcher->environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus.address());
}

void InstalledFloodTest::floodCostsNeitherMemoryNorTheScreen() {
    const QProcessEnvironment onTheBus = launcher->environment;
    LauncherProcess::simulate(u"card insert gbe 7"_s, onTheBus);
    QVERIFY2(launcher->start(), launcher->errors());
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s}));
    const Consumption consumption(launcher->processId());
    const auto slowestAtRest = launcher->slowestPress(u"Настройки"_s, 1s);
    const qint64 before = consumption.residentKilobytes();
    const double timeBefore = consumption.processorTime();
    consumption.forgetHighest();

    QProcess flood;
    begin(flood, 10s);
    auto slowest = launcher->slowestPress(u"Настройки"_s, 4s);
    LauncherProcess::simulate(u"card insert e1 501"_s, onTheBus);
    slowest = std::max(slowest, launcher->slowestPress(u"Настройки"_s, 4s));
    // Seen while the flood goes on.
    QVERIFY(flood.state() == QProcess::Running);
    QVERIFY(launcher->selectorTexts().contains(u"ИКМ"_s));
    QTRY_COMPARE_WITH_TIMEOUT(flood.state(), QProcess::NotRunning, 60'000);
    const double processorTime = consumption.processorTime() - timeBefore;
    QCOMPARE(flood.exitCode(), 0);

    QTRY_VERIFY(areOver(1));
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s, u"ИКМ"_s}));
    QCOMPARE(storedDrive(), QString());
    // From now on each announcement counts again.
    LauncherProcess::simulate(u"card remove gbe-7"_s, onTheBus);
    QTRY_COMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"ИКМ"_s}));
    QVERIFY(launcher->press(u"ИКМ"_s));
    LauncherProcess::simulate(u"card alarm e1-501 LOS present"_s, onTheBus);
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));

    const qint64 highest = consumption.highestKilobytes();
    const qint64 after = consumption.residentKilobytes();
    const QList<QByteArray> sent = flood.readAllStandardOutput().trimmed().split(' ');
    qInfo("%s signals in %s ms; slowest press %lld ms, %lld ms at rest; resident %lld KiB before, %lld at "
          "most, %lld after; %.1f s of processor time",
          sent.value(0).constData(), sent.value(1).constData(), static_cast<long long>(slowest.count()),
          static_cast<long long>(slowestAtRest.count()), static_cast<long long>(before),
          static_cast<long long>(highest), static_cast<long long>(after), processorTime);
    QVERIFY(slowest < longestPress);
    if (MEMORY_IS_MEASURED)
        QVERIFY(highest - before < mostGrowthKilobytes);
    // Whoever reads the journal afterwards finds something in it.
    QVERIFY(launcher->errors().size() < 100'000);
    QCOMPARE(launcher->stop(), 0);
    LauncherProcess::simulate(u"card remove e1-501"_s, onTheBus);
}

void InstalledFloodTest::manyFloodsTakeTheMemoryOfOne() {
    LauncherProcess::simulate(u"card insert gbe 7"_s, launcher->environment);
    QVERIFY2(launcher->start(), launcher->errors());
    const Consumption consumption(launcher->processId());
    QList<qint64> kilobytes{consumption.residentKilobytes()};
    for (int floods = 1; floods <= 5; ++floods) {
        QProcess flood;
        begin(flood, 3s);
        QTRY_VERIFY_WITH_TIMEOUT(areOver(floods), 30'000);
        QVERIFY(launcher->press(u"Настройки"_s));
        kilobytes.append(consumption.residentKilobytes());
    }
    const qint64 highest = consumption.highestKilobytes();
    qInfo() << "resident KiB before and after each flood" << kilobytes << "at most" << highest;
    if (MEMORY_IS_MEASURED)
        QVERIFY(highest - kilobytes.constFirst() < mostGrowthOfManyKilobytes);
    QCOMPARE(launcher->stop(), 0);
    LauncherProcess::simulate(u"card remove gbe-7"_s, launcher->environment);
}

QTEST_GUILESS_MAIN(InstalledFloodTest)
#include "tst_installedflood.moc"
