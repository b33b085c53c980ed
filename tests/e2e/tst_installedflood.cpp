// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "privatebus.h"
#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int signalsASecond = 10'000;
constexpr auto longestPress = IS_SANITIZED ? 2s : 1s;
constexpr qint64 mostGrowthKilobytes = 24 * 1024;
/// The allocator keeps what the first floods took, and later ones take it again. Were the signals kept, hundreds of bytes each,
/// it would be more.
constexpr qint64 mostGrowthOfManyKilobytes = 32 * 1024;
constexpr qint64 mostGrowthOfLastKilobytes = 4 * 1024;

/// All signals in their time and little more; a sanitizer takes its own.
constexpr std::chrono::seconds longestSending(std::chrono::seconds time) {
    return IS_SANITIZED ? 2 * time : time + 2s;
}

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
    void cleanup();

    void floodCostsNeitherMemoryNorTheScreen();
    void manyFloodsTakeTheMemoryOfOne();

private:
    bool simulate(const QString &words) const {
        return LauncherProcess::simulate(words, launcher->environment);
    }
    void startWithACard();
    /// The first card that is there is among those that it speaks of.
    void begin(QProcess &flood, std::chrono::seconds time) const;
    /// Presses while the flood goes on, before and after a card is inserted. It is seen before the flood is over.
    void pressWhileACardComes(const QProcess &flood, std::chrono::milliseconds &slowest);
    /// All signals of so many seconds, and not much later than that.
    static void waitUntilSent(QProcess &flood, std::chrono::seconds time);
    void announcementsCountAgain();
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

void InstalledFloodTest::cleanup() {
    launcher.reset();
    QVERIFY(LauncherProcess::removeCards());
}

void InstalledFloodTest::startWithACard() {
    QVERIFY(simulate(u"card insert gbe 7"_s));
    QVERIFY2(launcher->start(), launcher->errors());
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s}));
}

void InstalledFloodTest::begin(QProcess &flood, std::chrono::seconds time) const {
    flood.setProcessEnvironment(launcher->environment);
    flood.start(QStringLiteral(E2E_BUS_FLOOD),
                {QString::number(signalsASecond), QString::number(time.count()),
                 QDir(infoDirectory).entryInfoList({u"*.info"_s}).constFirst().filePath()});
}

void InstalledFloodTest::pressWhileACardComes(const QProcess &flood, std::chrono::milliseconds &slowest) {
    const auto before = launcher->slowestPress({u"Настройки"_s}, 3s);
    QVERIFY(simulate(u"card insert e1 501"_s));
    slowest = std::max(before, launcher->slowestPress({u"Настройки"_s}, 3s));
    QVERIFY(launcher->selectorTexts().contains(u"ИКМ"_s));
    QVERIFY(flood.state() == QProcess::Running);
}

void InstalledFloodTest::waitUntilSent(QProcess &flood, std::chrono::seconds time) {
    QTRY_COMPARE_WITH_TIMEOUT(flood.state(), QProcess::NotRunning, 60'000);
    QCOMPARE(flood.exitCode(), 0);
    const QList<QByteArray> sent = flood.readAllStandardOutput().trimmed().split(' ');
    qInfo("%s signals in %s ms", sent.value(0).constData(), sent.value(1).constData());
    QCOMPARE(sent.value(0).toLongLong(), qint64(signalsASecond) * time.count());
    QVERIFY2(std::chrono::milliseconds(sent.value(1).toLongLong()) < longestSending(time),
             "no flood: it was to take its time and little more, or no more than double under a sanitizer");
}

void InstalledFloodTest::announcementsCountAgain() {
    QVERIFY(simulate(u"card remove gbe-7"_s));
    QTRY_COMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"ИКМ"_s}));
    QVERIFY(launcher->press(u"ИКМ"_s));
    QVERIFY(simulate(u"card alarm e1-501 LOS present"_s));
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));
}

void InstalledFloodTest::floodCostsNeitherMemoryNorTheScreen() {
    startWithACard();
    const auto slowestAtRest = launcher->slowestPress({u"Настройки"_s}, 1s);
    const Consumption consumption(launcher->processId());
    const qint64 before = consumption.residentKilobytes();
    const double timeBefore = consumption.processorTime();
    consumption.forgetHighest();

    QProcess flood;
    begin(flood, 10s);
    std::chrono::milliseconds slowest{};
    pressWhileACardComes(flood, slowest);
    waitUntilSent(flood, 10s);
    const double processorTime = consumption.processorTime() - timeBefore;

    QTRY_VERIFY_WITH_TIMEOUT(areOver(1), 30'000);
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s, u"ИКМ"_s}));
    QCOMPARE(TestConfig::stored(u"flash/dir"_s), QString());
    announcementsCountAgain();

    const qint64 highest = consumption.highestKilobytes();
    qInfo(
        "slowest press %lld ms, %lld ms at rest; resident %lld KiB before, %lld at most, %lld after; %.1f s "
        "of processor time",
        static_cast<long long>(slowest.count()), static_cast<long long>(slowestAtRest.count()),
        static_cast<long long>(before), static_cast<long long>(highest),
        static_cast<long long>(consumption.residentKilobytes()), processorTime);
    QVERIFY(slowest < longestPress);
    if (!IS_SANITIZED)
        QVERIFY(highest - before < mostGrowthKilobytes);
    // Whoever reads the journal afterwards finds something in it.
    QVERIFY(launcher->errors().size() < 100'000);
    QCOMPARE(launcher->stop(), 0);
}

void InstalledFloodTest::manyFloodsTakeTheMemoryOfOne() {
    startWithACard();
    const Consumption consumption(launcher->processId());
    QList<qint64> kilobytes{consumption.residentKilobytes()};
    for (int floods = 1; floods <= 5; ++floods) {
        QProcess flood;
        begin(flood, 3s);
        waitUntilSent(flood, 3s);
        QTRY_VERIFY_WITH_TIMEOUT(areOver(floods), 30'000);
        QVERIFY(launcher->press(u"Настройки"_s));
        kilobytes.append(consumption.residentKilobytes());
    }
    const qint64 highest = consumption.highestKilobytes();
    qInfo() << "resident KiB before and after each flood" << kilobytes << "at most" << highest;
    if (!IS_SANITIZED) {
        QVERIFY(highest - kilobytes.constFirst() < mostGrowthOfManyKilobytes);
        QVERIFY(kilobytes[5] - kilobytes[2] < mostGrowthOfLastKilobytes);
    }
    QCOMPARE(launcher->stop(), 0);
}

QTEST_GUILESS_MAIN(InstalledFloodTest)
#include "tst_installedflood.moc"
