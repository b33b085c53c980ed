// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "privatebus.h"
#include "slowexport.h"
#include "testconfig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QLocalServer>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Takes the calls at a socket, and says nothing.
class SilentServer {
public:
    explicit SilentServer(const QString &socket) {
        // A bus that was killed leaves its own behind.
        QLocalServer::removeServer(socket);
        server.listen(socket);
    }
    bool isCalled() { return server.waitForNewConnection(10'000); }

private:
    QLocalServer server;
};

} // namespace

/// The installed launcher on a bus that ends under it. The probe and the simulated cards have another one.
class InstalledBusTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void launcherOutlivesTheBus();
    void everyLossIsOutlived();
    void driveIsFollowedAcrossTheLoss_data();
    void driveIsFollowedAcrossTheLoss();
    void exportGoesOnWithoutTheBus();
    void busThatHangsDoesNotHoldUpTheScreen();
    void silentBusIsWaitedForBesideTheScreen();
    void silentBusAtTheStartIsWaitedFor();

private:
    QString socket() const { return directory->filePath(u"bus"_s); }
    /// Told on the bus of the cards, which the launcher does not hear; the info file is there or gone.
    static bool simulate(const QString &words) { return LauncherProcess::simulate(words); }
    bool simulateOnItsBus(const QString &words) const {
        return LauncherProcess::simulate(words, launcher->environment);
    }
    void announceDrive(const QString &name) const {
        QCOMPARE(QProcess::execute(u"dbus-send"_s, {"--bus="_L1 + bus->address(), u"/"_s,
                                                    u"zr.flash.inserted"_s, "string:"_L1 + name}),
                 0);
    }
    static QString mountPoint(const QString &drive) {
        return qEnvironmentVariable("ZR_SYSROOT") + "/media/"_L1 + drive;
    }
    void loseTheBus();
    void waitUntilItIsBack();

    TestConfig config;
    std::unique_ptr<QTemporaryDir> directory;
    std::unique_ptr<PrivateBus> bus;
    std::unique_ptr<LauncherProcess> launcher;
    qsizetype losses = 0;
};

void InstalledBusTest::init() {
    QVERIFY(QDir().mkpath(qEnvironmentVariable("ZR_SYSROOT") + "/var/run/tester"_L1));
    config = TestConfig();
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    directory = std::make_unique<QTemporaryDir>();
    bus = std::make_unique<PrivateBus>(socket());
    QVERIFY(!bus->address().isEmpty());
    launcher = std::make_unique<LauncherProcess>();
    launcher->environment.insert(u"PROBE_BUS"_s, qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"));
    launcher->environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, bus->address());
    losses = 0;
}

void InstalledBusTest::cleanup() {
    launcher.reset();
    // A simulated card ends with its bus, and would leave its info file.
    QVERIFY(LauncherProcess::removeCards());
    bus.reset();
    QDir(mountPoint(u""_s)).removeRecursively();
}

void InstalledBusTest::loseTheBus() {
    bus->kill();
    ++losses;
    QTRY_COMPARE(launcher->errors().count("The D-Bus session bus is lost"), losses);
}

void InstalledBusTest::waitUntilItIsBack() {
    QTRY_COMPARE(launcher->errors().count("The D-Bus session bus is back.\n"), losses);
}

void InstalledBusTest::launcherOutlivesTheBus() {
    QVERIFY(simulate(u"card insert e1 501"_s));
    QVERIFY2(launcher->start(), launcher->errors());
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"ИКМ"_s}));
    loseTheBus();

    // The card that is there has a line of its own.
    QVERIFY(simulate(u"card alarm e1-501 LOS present"_s));
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));
    QVERIFY(launcher->press(u"Настройки"_s));
    QCOMPARE(launcher->caption(), u"Настройки"_s);
    QVERIFY(simulate(u"card insert gbe 7"_s));
    QVERIFY(simulate(u"card remove e1-501"_s));
    QCOMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"ИКМ"_s}));

    QElapsedTimer sinceTheBusIsThere;
    QVERIFY(bus->restart());
    sinceTheBusIsThere.start();
    QTRY_COMPARE(launcher->selectorTexts(), QStringList({u"Настройки"_s, u"GbE"_s}));
    qInfo("%lld ms from the new bus to the page of the new card",
          static_cast<long long>(sinceTheBusIsThere.elapsed()));
    QCOMPARE(launcher->caption(), u"GbE"_s);
    QTRY_VERIFY(launcher->leds().contains(u"LINK:1"_s));

    // News come on the new bus.
    QVERIFY(simulateOnItsBus(u"card insert otdr 3"_s));
    QTRY_COMPARE(launcher->selectorTexts().size(), 3);
    announceDrive(u"sda1"_s);
    QTRY_VERIFY(!launcher->message().isEmpty());
    QCOMPARE(TestConfig::stored(u"flash/dir"_s), u"/media/sda1"_s);
}

void InstalledBusTest::everyLossIsOutlived() {
    QVERIFY2(launcher->start(), launcher->errors());
    for (int round = 0; round < 5; ++round) {
        loseTheBus();
        QVERIFY(bus->restart());
        QElapsedTimer sinceTheBusIsThere;
        sinceTheBusIsThere.start();
        waitUntilItIsBack();
        qInfo("back on the new bus after %lld ms", static_cast<long long>(sinceTheBusIsThere.elapsed()));
        QVERIFY(simulateOnItsBus(u"card insert gbe 7"_s));
        QTRY_COMPARE(launcher->selectorTexts().size(), 2);
        QVERIFY(simulate(u"card remove gbe-7"_s));
        QTRY_COMPARE(launcher->selectorTexts().size(), 1);
    }
    QCOMPARE(launcher->stop(), 0);
}

void InstalledBusTest::driveIsFollowedAcrossTheLoss_data() {
    QTest::addColumn<bool>("isPulled");
    QTest::addColumn<QString>("announced");
    QTest::addColumn<QString>("drive");
    QTest::addColumn<bool>("isAsked");
    QTest::newRow("stayed, announced once more") << false << u"sda1"_s << u"/media/sda1"_s << false;
    QTest::newRow("pulled") << true << u"sda"_s << QString() << false;
    QTest::newRow("another in its place") << false << u"sdb1"_s << u"/media/sdb1"_s << true;
}

void InstalledBusTest::driveIsFollowedAcrossTheLoss() {
    QFETCH(bool, isPulled);
    QFETCH(QString, announced);
    QFETCH(QString, drive);
    QFETCH(bool, isAsked);
    QVERIFY2(launcher->start(), launcher->errors());
    QVERIFY(QDir().mkpath(mountPoint(u"sda1"_s)));
    announceDrive(u"sda1"_s);
    QTRY_VERIFY(!launcher->message().isEmpty());
    QVERIFY(launcher->press(u"Нет"_s));
    QTRY_COMPARE(launcher->message(), QString());

    loseTheBus();
    if (isPulled)
        QVERIFY(QDir().rmdir(mountPoint(u"sda1"_s)));
    QVERIFY(bus->restart());
    waitUntilItIsBack();
    announceDrive(announced);
    // Comes behind the drive.
    QVERIFY(simulateOnItsBus(u"flash mount-failed 32"_s));
    QTRY_VERIFY(launcher->message().contains(u"32"_s));
    QCOMPARE(TestConfig::stored(u"flash/dir"_s), drive);
    QVERIFY(launcher->press(u"ОК"_s));
    QTRY_VERIFY(!launcher->message().contains(u"32"_s));
    QCOMPARE(!launcher->message().isEmpty(), isAsked);
}

void InstalledBusTest::exportGoesOnWithoutTheBus() {
    config.set(u"paths/main"_s, u"reports"_s);
    const SlowExport slowExport(*launcher);
    QVERIFY2(launcher->start(), launcher->errors());
    QVERIFY(QDir().mkpath(mountPoint(u"sda1"_s)));
    announceDrive(u"sda1"_s);
    const int progress = slowExport.begin();
    QVERIFY(progress > 0);
    loseTheBus();
    QTRY_VERIFY(launcher->progress() > progress);
    QVERIFY(bus->restart());
    waitUntilItIsBack();
    QVERIFY(launcher->progress() > progress);
    QTRY_COMPARE_WITH_TIMEOUT(launcher->message(), QString(), SlowExport::longestCopyMs);
    QVERIFY(slowExport.isWholeAt(mountPoint(u"sda1"_s)));
}

void InstalledBusTest::busThatHangsDoesNotHoldUpTheScreen() {
    QVERIFY(simulate(u"card insert e1 501"_s));
    QVERIFY2(launcher->start(), launcher->errors());
    bus->suspend();
    const auto slowest = launcher->slowestPress({u"Настройки"_s}, 2s);
    qInfo("slowest press while the bus hangs: %lld ms", static_cast<long long>(slowest.count()));
    QVERIFY(slowest < LauncherProcess::longestPress);
    QVERIFY(launcher->press(u"ИКМ"_s));
    QVERIFY(simulate(u"card alarm e1-501 LOS present"_s));
    QTRY_VERIFY(launcher->leds().contains(u"LOS:3"_s));

    bus->resume();
    QVERIFY(simulateOnItsBus(u"card insert gbe 7"_s));
    QTRY_COMPARE(launcher->selectorTexts().size(), 3);
    QCOMPARE(launcher->stop(), 0);
}

void InstalledBusTest::silentBusIsWaitedForBesideTheScreen() {
    QVERIFY2(launcher->start(), launcher->errors());
    loseTheBus();
    {
        SilentServer server(socket());
        QVERIFY(server.isCalled());
        QVERIFY2(server.isCalled(), "one that said nothing was not called again");
        const auto slowest = launcher->slowestPress({u"Настройки"_s}, 2s);
        qInfo("slowest press while the new bus says nothing: %lld ms",
              static_cast<long long>(slowest.count()));
        QVERIFY(slowest < LauncherProcess::longestPress);
    }
    QVERIFY(bus->restart());
    waitUntilItIsBack();
    QVERIFY(simulateOnItsBus(u"card insert gbe 7"_s));
    QTRY_COMPARE(launcher->selectorTexts().size(), 2);
    QVERIFY(simulate(u"card remove gbe-7"_s));

    loseTheBus();
    SilentServer server(socket());
    QVERIFY(server.isCalled());
    QElapsedTimer sinceTheSignal;
    sinceTheSignal.start();
    QCOMPARE(launcher->stop(), 0);
    // The unit waits 15 seconds for it.
    QVERIFY(sinceTheSignal.elapsed() < 10'000);
}

void InstalledBusTest::silentBusAtTheStartIsWaitedFor() {
    bus->kill();
    QElapsedTimer sinceTheStart;
    sinceTheStart.start();
    {
        const SilentServer server(socket());
        QVERIFY2(launcher->start(), launcher->errors());
        const auto shown = sinceTheStart.elapsed();
        qInfo("shown after %lld ms", static_cast<long long>(shown));
        QVERIFY2(shown < 8'000, "it was called more than once, a second each, before anything was shown");
    }
    QTRY_VERIFY(launcher->errors().contains("The D-Bus session bus does not answer; waiting for it.\n"));
    QVERIFY(bus->restart());
    QTRY_VERIFY(launcher->errors().contains("The D-Bus session bus is back.\n"));
    QVERIFY(simulateOnItsBus(u"card insert gbe 7"_s));
    QTRY_COMPARE(launcher->selectorTexts().size(), 2);
}

QTEST_GUILESS_MAIN(InstalledBusTest)
#include "tst_installedbus.moc"
