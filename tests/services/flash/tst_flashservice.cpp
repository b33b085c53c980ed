// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakeudisks.h"
#include "privatebus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

constexpr int longTime = 30'000;

/// The service as a process between a UDisks2, a sudo and a listener on the session bus, all three of the test's own.
class FlashServiceTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void insertedPartitionIsMountedAndAnnounced();
    void partitionPresentAtStartIsMounted();
    void pulledDriveIsAnnouncedAndUnmounted_data();
    void pulledDriveIsAnnouncedAndUnmounted();
    void driveIsMountedAgainWhenItComesBack();
    void failedMountIsAnnounced_data();
    void failedMountIsAnnounced();
    void onlyOnePartitionOfADriveIsMounted();
    void secondPartitionIsMountedWhenTheFirstCannotBe();
    void secondDriveIsMountedToo();
    void otherBlockDevicesAreLeftAlone();
    void lateInterfacesAreWaitedFor();
    void badNamesAreRefusedAloud();
    void pullDuringTheMountAnnouncesNothing();
    void hangingMountIsGivenUp();
    void missingSudoIsTold();
    void vanishedUDisksIsAllDrivesRemoved();
    void laterUDisksIsAsked();
    void hostileSignalsDoNoHarm();
    void thousandsOfObjectsAreTakenIn();
    void terminationLeavesDrivesMounted();
    void missingSystemBusEndsTheStart();
    void lostBusEndsTheService_data();
    void lostBusEndsTheService();
    void badCommandLinesAreRefused_data();
    void badCommandLinesAreRefused();

public slots:
    void inserted(const QString &name) { announced.append("inserted "_L1 + name); }
    void removed(const QString &name) { announced.append("removed "_L1 + name); }
    void mountFailed(int code) { announced.append(u"mountFailed %1"_s.arg(code)); }

private:
    static QString home(const char *file) { return QDir::home().filePath(QString::fromLatin1(file)); }
    static void write(const QString &file, const QByteArray &text) {
        QFile target(file);
        if (target.open(QIODevice::WriteOnly))
            target.write(text);
    }
    static void setMountCode(int code) { write(home("sudo.code"), QByteArray::number(code) + '\n'); }
    /// Makes mounts wait until letMountEnd().
    static bool holdMounts() { return ::mkfifo(QFile::encodeName(home("sudo.gate")).constData(), 0600) == 0; }
    static void letMountEnd() { write(home("sudo.gate"), "\n"); }

    /// What sudo was asked to run.
    static QStringList helperCalls() {
        QFile log(home("sudo.log"));
        if (!log.open(QIODevice::ReadOnly))
            return {};
        return QString::fromUtf8(log.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    static QString call(const QString &words) { return QStringLiteral("-n " HELPER " ") + words; }

    void setEnvironment(const QString &name, const QString &value) {
        QProcessEnvironment environment = service.processEnvironment();
        environment.insert(name, value);
        service.setProcessEnvironment(environment);
    }
    /// Starts the service and waits until it has asked for the objects.
    bool start(const QStringList &options = {}) {
        const int before = udisks->questions();
        service.start(QStringLiteral(SERVICE), options);
        return QTest::qWaitFor([&] { return udisks->questions() > before; }, longTime);
    }
    void insert(const QString &name, const QString &drive = u"stick"_s) {
        udisks->add(UDisks::drivePath(drive), UDisks::drive());
        udisks->add(UDisks::blockPath(name), UDisks::partition("/dev/" + name.toLatin1(), drive));
    }
    QByteArray errors() {
        errorBytes += service.readAllStandardError();
        return errorBytes;
    }
    bool ends() { return service.state() == QProcess::NotRunning || service.waitForFinished(10'000); }

    std::unique_ptr<PrivateBus> systemBus;
    std::unique_ptr<FakeUDisks> udisks;
    QProcess service;
    QByteArray errorBytes;
    QStringList announced;
};

void FlashServiceTest::initTestCase() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    const auto listen = [&](const QString &name, const char *slot) {
        return bus.connect(QString(), u"/"_s, u"zr.flash"_s, name, this, slot);
    };
    QVERIFY(listen(u"inserted"_s, SLOT(inserted(QString))));
    QVERIFY(listen(u"removed"_s, SLOT(removed(QString))));
    QVERIFY(listen(u"mountFailed"_s, SLOT(mountFailed(int))));
}

void FlashServiceTest::init() {
    systemBus = std::make_unique<PrivateBus>();
    QVERIFY(!systemBus->address().isEmpty());
    udisks = std::make_unique<FakeUDisks>(systemBus->address());
    QVERIFY(udisks->appear({}));
    setMountCode(0);
    service.setProcessEnvironment(QProcessEnvironment::systemEnvironment());
    setEnvironment(u"PATH"_s, QStringLiteral(STAND_INS ":") + qEnvironmentVariable("PATH"));
    setEnvironment(u"DBUS_SYSTEM_BUS_ADDRESS"_s, systemBus->address());
}

void FlashServiceTest::cleanup() {
    service.terminate();
    QVERIFY(ends());
    if (QTest::currentTestFailed())
        qWarning("%s", errors().constData());
    udisks.reset();
    systemBus.reset();
    for (const char *file : {"sudo.log", "sudo.code", "sudo.gate"})
        QFile::remove(home(file));
    announced.clear();
    errorBytes.clear();
}

void FlashServiceTest::insertedPartitionIsMountedAndAnnounced() {
    QVERIFY(start());
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
    QCOMPARE(helperCalls(), QStringList{call(u"mount sda1"_s)});
    QCOMPARE(errors(), QByteArray());
}

void FlashServiceTest::partitionPresentAtStartIsMounted() {
    insert(u"sda1"_s);
    QVERIFY(start());
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
    QCOMPARE(helperCalls(), QStringList{call(u"mount sda1"_s)});
}

void FlashServiceTest::pulledDriveIsAnnouncedAndUnmounted_data() {
    QTest::addColumn<QDBusObjectPath>("path");
    QTest::newRow("partition goes") << UDisks::blockPath(u"sda1"_s);
    QTest::newRow("drive goes") << UDisks::drivePath(u"stick"_s);
}

void FlashServiceTest::pulledDriveIsAnnouncedAndUnmounted() {
    QFETCH(QDBusObjectPath, path);
    QVERIFY(start());
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
    udisks->remove(path);
    QTRY_COMPARE(announced, QStringList({u"inserted sda1"_s, u"removed sda1"_s}));
    QTRY_COMPARE(helperCalls(), QStringList({call(u"mount sda1"_s), call(u"unmount sda1"_s)}));
}

void FlashServiceTest::driveIsMountedAgainWhenItComesBack() {
    QVERIFY(start());
    insert(u"sda1"_s);
    QTRY_COMPARE(announced.size(), 1);
    udisks->remove(UDisks::blockPath(u"sda1"_s));
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList({u"inserted sda1"_s, u"removed sda1"_s, u"inserted sda1"_s}));
    QCOMPARE(helperCalls(),
             QStringList({call(u"mount sda1"_s), call(u"unmount sda1"_s), call(u"mount sda1"_s)}));
}

void FlashServiceTest::failedMountIsAnnounced_data() {
    QTest::addColumn<int>("code");
    QTest::newRow("mount failure") << 32;
    QTest::newRow("not permitted") << 1;
    QTest::newRow("several bits") << 96;
}

void FlashServiceTest::failedMountIsAnnounced() {
    QFETCH(int, code);
    QVERIFY(start());
    setMountCode(code);
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"mountFailed %1"_s.arg(code)});
    // The next one is not hindered, and pulling what was never announced is not announced.
    udisks->remove(UDisks::blockPath(u"sda1"_s));
    setMountCode(0);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(announced, QStringList({u"mountFailed %1"_s.arg(code), u"inserted sdb1"_s}));
    QCOMPARE(helperCalls(), QStringList({call(u"mount sda1"_s), call(u"mount sdb1"_s)}));
}

void FlashServiceTest::onlyOnePartitionOfADriveIsMounted() {
    QVERIFY(start());
    insert(u"sda1"_s);
    insert(u"sda2"_s);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(announced.size(), 2);
    QVERIFY(announced.contains(u"inserted sda1"_s));
    QVERIFY(announced.contains(u"inserted sdb1"_s));
    udisks->remove(UDisks::blockPath(u"sda2"_s));
    udisks->remove(UDisks::blockPath(u"sdb1"_s));
    QTRY_COMPARE(announced.size(), 3);
    QCOMPARE(announced.last(), u"removed sdb1"_s);
}

void FlashServiceTest::secondPartitionIsMountedWhenTheFirstCannotBe() {
    QVERIFY(start());
    setMountCode(32);
    QVERIFY(holdMounts());
    insert(u"sda1"_s);
    insert(u"sda2"_s);
    QTRY_COMPARE(helperCalls(), QStringList{call(u"mount sda1"_s)});
    letMountEnd();
    QTRY_COMPARE(helperCalls(), QStringList({call(u"mount sda1"_s), call(u"mount sda2"_s)}));
    setMountCode(0);
    letMountEnd();
    QTRY_COMPARE(announced, QStringList({u"mountFailed 32"_s, u"inserted sda2"_s}));
}

void FlashServiceTest::secondDriveIsMountedToo() {
    QVERIFY(start());
    QVERIFY(holdMounts());
    insert(u"sda1"_s);
    QTRY_COMPARE(helperCalls().size(), 1);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(helperCalls().size(), 2);
    QFile::remove(home("sudo.gate"));
    insert(u"sdc1"_s, u"third"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sdc1"_s});
}

void FlashServiceTest::otherBlockDevicesAreLeftAlone() {
    QVERIFY(start());
    udisks->add(UDisks::drivePath(u"disk"_s),
                UDisks::drive({{u"Removable"_s, false}, {u"ConnectionBus"_s, QString()}}));
    udisks->add(UDisks::blockPath(u"sda1"_s), UDisks::partition("/dev/sda1", u"disk"_s));
    udisks->add(UDisks::drivePath(u"whole"_s), UDisks::drive());
    udisks->add(UDisks::blockPath(u"sdb"_s), UDisks::partition("/dev/sdb", u"whole"_s, {u"Partition"_s}));
    insert(u"sdc1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sdc1"_s});
    QCOMPARE(helperCalls(), QStringList{call(u"mount sdc1"_s)});
    QCOMPARE(errors(),
             "zr-flash-service: /dev/sdb has a file system and no partitions; it is not mounted\n"_ba);
}

void FlashServiceTest::lateInterfacesAreWaitedFor() {
    QVERIFY(start());
    UDisksInterfaces whole = UDisks::partition("/dev/sda1", u"stick"_s);
    const QString filesystem = u"org.freedesktop.UDisks2.Filesystem"_s;
    const UDisksInterfaces late{{filesystem, whole.take(filesystem)}};
    udisks->add(UDisks::blockPath(u"sda1"_s), whole);
    udisks->add(UDisks::blockPath(u"sda1"_s), late);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sdb1"_s});
    // The last that is missing is the drive itself.
    udisks->add(UDisks::drivePath(u"stick"_s), UDisks::drive());
    QTRY_COMPARE(announced, QStringList({u"inserted sdb1"_s, u"inserted sda1"_s}));
    udisks->say(u"InterfacesRemoved"_s,
                {QVariant::fromValue(UDisks::blockPath(u"sda1"_s)), QStringList{filesystem}});
    QTRY_COMPARE(announced.last(), u"removed sda1"_s);
}

void FlashServiceTest::badNamesAreRefusedAloud() {
    QVERIFY(start());
    udisks->add(UDisks::drivePath(u"stick"_s), UDisks::drive());
    const QList<QByteArray> devices{"/dev/../etc1",  "/dev/sda",       "/dev/a b1", "/dev/x;reboot1",
                                    "/dev/dir/sda1", "/dev/\x1b[2Jx1", "sda1",      ""};
    for (qsizetype i = 0; i < devices.size(); ++i)
        udisks->add(UDisks::blockPath(u"bad%1"_s.arg(i)), UDisks::partition(devices[i], u"stick"_s));
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sdb1"_s});
    QCOMPARE(helperCalls(), QStringList{call(u"mount sdb1"_s)});
    QTRY_COMPARE(errors().count('\n'), devices.size());
    QVERIFY(errors().contains(
        "zr-flash-service: \"/dev/x%3Breboot1\" is no name of a partition; it is not mounted\n"));
    QVERIFY(!errors().contains('\x1b'));
}

void FlashServiceTest::pullDuringTheMountAnnouncesNothing() {
    QVERIFY(start());
    QVERIFY(holdMounts());
    insert(u"sda1"_s);
    QTRY_COMPARE(helperCalls(), QStringList{call(u"mount sda1"_s)});
    udisks->remove(UDisks::blockPath(u"sda1"_s));
    // It is back before the first mount has ended; that one is undone first.
    insert(u"sda1"_s);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(helperCalls().size(), 2);
    QFile::rename(home("sudo.gate"), home("sudo.oldgate"));
    QFile oldGate(home("sudo.oldgate"));
    QVERIFY(oldGate.open(QIODevice::WriteOnly));
    oldGate.write("\n\n");
    oldGate.close();
    QTRY_VERIFY(announced.contains(u"inserted sda1"_s));
    const QStringList calls = helperCalls().filter(u"sda1"_s);
    QCOMPARE(calls, QStringList({call(u"mount sda1"_s), call(u"unmount sda1"_s), call(u"mount sda1"_s)}));
    QCOMPARE(announced.filter(u"sda1"_s), QStringList{u"inserted sda1"_s});
    QFile::remove(home("sudo.oldgate"));
}

void FlashServiceTest::hangingMountIsGivenUp() {
    // Long enough for a mount that does not hang, on a busy machine too.
    QVERIFY(start({u"--mount-limit"_s, u"6000"_s}));
    QVERIFY(holdMounts());
    insert(u"sda1"_s);
    QTRY_COMPARE_WITH_TIMEOUT(announced, QStringList{u"mountFailed 32"_s}, longTime);
    QTRY_COMPARE(errors(), "zr-flash-service: mounting sda1 takes too long\n"_ba);
    QTRY_COMPARE(helperCalls(), QStringList({call(u"mount sda1"_s), call(u"unmount sda1"_s)}));
    QFile::remove(home("sudo.gate"));
    udisks->remove(UDisks::blockPath(u"sda1"_s));
    insert(u"sda1"_s);
    QTRY_COMPARE_WITH_TIMEOUT(announced, QStringList({u"mountFailed 32"_s, u"inserted sda1"_s}), longTime);
}

void FlashServiceTest::missingSudoIsTold() {
    setEnvironment(u"PATH"_s, QDir::homePath());
    QVERIFY(start());
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"mountFailed 1"_s});
    QTRY_VERIFY(errors().startsWith("zr-flash-service: cannot run sudo: "));
}

void FlashServiceTest::vanishedUDisksIsAllDrivesRemoved() {
    QVERIFY(start());
    insert(u"sda1"_s);
    insert(u"sdb1"_s, u"other"_s);
    QTRY_COMPARE(announced.size(), 2);
    udisks->vanish();
    QTRY_COMPARE(announced.size(), 4);
    QCOMPARE(announced.mid(2), QStringList({u"removed sda1"_s, u"removed sdb1"_s}));
    const UDisksObjects again{{UDisks::drivePath(u"stick"_s), UDisks::drive()},
                              {UDisks::blockPath(u"sda1"_s), UDisks::partition("/dev/sda1", u"stick"_s)}};
    QVERIFY(udisks->appear(again));
    QTRY_COMPARE(announced.size(), 5);
    QCOMPARE(announced.last(), u"inserted sda1"_s);
    insert(u"sdc1"_s, u"third"_s);
    QTRY_COMPARE(announced.last(), u"inserted sdc1"_s);
}

void FlashServiceTest::laterUDisksIsAsked() {
    udisks->vanish();
    service.start(QStringLiteral(SERVICE), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(errors().contains("zr-flash-service: UDisks2 does not tell its objects: "),
                             longTime);
    QVERIFY(udisks->appear({}));
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
}

void FlashServiceTest::hostileSignalsDoNoHarm() {
    QVERIFY(start());
    const QVariant path = QVariant::fromValue(UDisks::blockPath(u"sda1"_s));
    for (const QString &signal : {u"InterfacesAdded"_s, u"InterfacesRemoved"_s}) {
        udisks->say(signal, {});
        udisks->say(signal, {1, 2, 3});
        udisks->say(signal, {path});
        udisks->say(signal, {path, u"text"_s});
        udisks->say(signal, {path, QVariantMap{{u"org.freedesktop.UDisks2.Block"_s, 1}}});
        udisks->say(signal, {u"no path"_s, QStringList{u"x"_s}});
    }
    const QVariantMap nested{{u"Device"_s, QVariantMap{{u"a"_s, QVariantList{1, QStringList{u"b"_s}}}}},
                             {u"Drive"_s, QVariantList{}},
                             {u"HintSystem"_s, u"false"_s}};
    udisks->add(UDisks::blockPath(u"odd"_s), {{u"org.freedesktop.UDisks2.Block"_s, nested},
                                              {u"org.freedesktop.UDisks2.Filesystem"_s, nested},
                                              {QString(), nested}});
    udisks->remove(UDisks::blockPath(u"never_seen"_s));
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
    QCOMPARE(service.state(), QProcess::Running);
}

void FlashServiceTest::thousandsOfObjectsAreTakenIn() {
    UDisksObjects objects{{UDisks::drivePath(u"disk"_s), UDisks::drive({{u"ConnectionBus"_s, u"sdio"_s}})}};
    for (int i = 0; i < 10'000; ++i)
        objects[UDisks::blockPath(u"a%1"_s.arg(i))] =
            UDisks::partition("/dev/a" + QByteArray::number(i), u"disk"_s);
    udisks->vanish();
    QVERIFY(udisks->appear(objects));
    QVERIFY(start());
    for (int i = 0; i < 10'000; ++i)
        udisks->add(UDisks::blockPath(u"b%1"_s.arg(i)), objects[UDisks::blockPath(u"a%1"_s.arg(i))]);
    insert(u"sda1"_s);
    QTRY_COMPARE_WITH_TIMEOUT(announced, QStringList{u"inserted sda1"_s}, 30'000);
    QCOMPARE(helperCalls().size(), 1);
}

void FlashServiceTest::terminationLeavesDrivesMounted() {
    QVERIFY(start());
    insert(u"sda1"_s);
    QTRY_COMPARE(announced, QStringList{u"inserted sda1"_s});
    service.terminate();
    QVERIFY(ends());
    QCOMPARE(service.exitStatus(), QProcess::NormalExit);
    QCOMPARE(service.exitCode(), 0);
    QCOMPARE(helperCalls(), QStringList{call(u"mount sda1"_s)});
    QCOMPARE(announced, QStringList{u"inserted sda1"_s});
}

void FlashServiceTest::missingSystemBusEndsTheStart() {
    setEnvironment(u"DBUS_SYSTEM_BUS_ADDRESS"_s, u"unix:path=/nonexistent"_s);
    service.start(QStringLiteral(SERVICE), QStringList());
    QVERIFY(ends());
    QCOMPARE(service.exitCode(), 1);
    QCOMPARE(errors(), "zr-flash-service: no connection to the system bus\n"_ba);
}

void FlashServiceTest::lostBusEndsTheService_data() {
    QTest::addColumn<bool>("isSessionBus");
    QTest::newRow("session bus") << true;
    QTest::newRow("system bus") << false;
}

void FlashServiceTest::lostBusEndsTheService() {
    QFETCH(bool, isSessionBus);
    PrivateBus sessionBus;
    setEnvironment(u"DBUS_SESSION_BUS_ADDRESS"_s, sessionBus.address());
    QVERIFY(start());
    (isSessionBus ? sessionBus : *systemBus).end();
    QVERIFY(ends());
    QCOMPARE(service.exitStatus(), QProcess::NormalExit);
    QCOMPARE(service.exitCode(), 1);
    QVERIFY(errors().contains("zr-flash-service: a bus has gone\n"));
}

void FlashServiceTest::badCommandLinesAreRefused_data() {
    QTest::addColumn<QStringList>("words");
    QTest::newRow("no limit") << QStringList{u"--mount-limit"_s};
    QTest::newRow("limit is no number") << QStringList{u"--mount-limit"_s, u"soon"_s};
    QTest::newRow("limit is zero") << QStringList{u"--mount-limit"_s, u"0"_s};
    QTest::newRow("unknown option") << QStringList{u"--fast"_s};
    QTest::newRow("bare word") << QStringList{u"now"_s};
}

void FlashServiceTest::badCommandLinesAreRefused() {
    QFETCH(QStringList, words);
    service.start(QStringLiteral(SERVICE), words);
    QVERIFY(ends());
    QCOMPARE(service.exitCode(), 2);
    QVERIFY(errors().contains("--mount-limit MS"));
}

QTEST_GUILESS_MAIN(FlashServiceTest)
#include "tst_flashservice.moc"
