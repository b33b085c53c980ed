// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakemachine.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemReaderTest : public QObject {
    Q_OBJECT

private slots:
    void stateIsRead();
    void firstLoadIsThatSinceTheStart();
    void loadIsThatSinceTheReadingBefore();
    void loadOverATooShortTimeStays();
    void loadIsUnknownWithoutItsFile();
    void homeOnTheRootFileSystemIsNotCountedTwice();
    void homeOnAFileSystemOfItsOwnIsMeasured();
    void namelessProcessorIsTheBoard();
    void namelessBoardIsTheArchitecture();
    void machineThatTellsNothingIsUnknown();
    void storageWithoutRoomIsNotListed();
    void realMachineIsRead();
};

void SystemReaderTest::stateIsRead() {
    const FakeMachine machine;
    const SystemState state = machine.reader()->read();
    QCOMPARE(state.launcher, u"launcher 1"_s);
    QVERIFY(state.kernel.startsWith("Linux "_L1));
    QCOMPARE(state.processor, u"Test Processor"_s);
    QCOMPARE(state.memory->total, quint64(1'024'000'000));
    QCOMPARE(state.memory->used, quint64(256'000'000));
    QCOMPARE(state.uptime->count(), 93784);
    QVERIFY(state.root->total > 0);
}

void SystemReaderTest::firstLoadIsThatSinceTheStart() {
    const FakeMachine machine;
    QCOMPARE(machine.reader()->read().load, 10);
}

void SystemReaderTest::loadIsThatSinceTheReadingBefore() {
    const FakeMachine machine;
    const auto reader = machine.reader();
    reader->read();
    machine.setCpu(175, 925);
    QCOMPARE(reader->read().load, 75);
}

void SystemReaderTest::loadOverATooShortTimeStays() {
    const FakeMachine machine;
    const auto reader = machine.reader();
    reader->read();
    machine.setCpu(101, 900);
    QCOMPARE(reader->read().load, 10);
}

void SystemReaderTest::loadIsUnknownWithoutItsFile() {
    const FakeMachine machine;
    const auto reader = machine.reader();
    reader->read();
    machine.set(u"stat"_s, "");
    QVERIFY(!reader->read().load);
}

void SystemReaderTest::homeOnTheRootFileSystemIsNotCountedTwice() {
    const FakeMachine machine;
    QVERIFY(!machine.reader()->read().home);
}

void SystemReaderTest::homeOnAFileSystemOfItsOwnIsMeasured() {
    const FakeMachine machine;
    SystemSources sources = machine.sources();
    sources.homeDirectory = u"/proc"_s;
    QVERIFY(SystemReader(sources, QString()).read().home);
}

void SystemReaderTest::namelessProcessorIsTheBoard() {
    const FakeMachine machine;
    machine.set(u"cpuinfo"_s, "CPU part : 0xd08\n");
    machine.set(u"device-tree/model"_s, QByteArray("Test Board Rev 2\0", 17));
    QCOMPARE(machine.reader()->read().processor, u"Test Board Rev 2"_s);
}

void SystemReaderTest::namelessBoardIsTheArchitecture() {
    const FakeMachine machine;
    machine.set(u"cpuinfo"_s, "");
    QCOMPARE(machine.reader()->read().processor, QSysInfo::currentCpuArchitecture());
}

void SystemReaderTest::machineThatTellsNothingIsUnknown() {
    SystemReader reader({u"/nowhere"_s, u"/nowhere"_s, u"/nowhere"_s}, QString());
    const SystemState state = reader.read();
    QVERIFY(!state.load);
    QVERIFY(!state.memory);
    QVERIFY(!state.uptime);
    QVERIFY(!state.root);
    QVERIFY(!state.home);
    QVERIFY(reader.readStorage().isEmpty());
}

void SystemReaderTest::storageWithoutRoomIsNotListed() {
    const FakeMachine machine;
    machine.set(u"mounts"_s, "/dev/a /nowhere ext4\n/dev/b /proc ext4\n/dev/c / ext4\n");
    const QList<MountedVolume> storage = machine.reader()->readStorage();
    QCOMPARE(storage.size(), 1);
    QCOMPARE(storage.first().mount.directory, u"/"_s);
}

void SystemReaderTest::realMachineIsRead() {
    SystemReader reader({u"/proc"_s, u"/"_s, QDir::homePath()}, QString());
    const SystemState state = reader.read();
    QVERIFY(!state.host.isEmpty());
    QVERIFY(!state.processor.isEmpty());
    QVERIFY(state.load);
    QVERIFY(state.memory->used < state.memory->total);
    QVERIFY(state.uptime->count() > 0);
}

QTEST_GUILESS_MAIN(SystemReaderTest)
#include "tst_systemreader.moc"
