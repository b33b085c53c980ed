// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashpartition.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

const QDBusObjectPath drivePath(u"/drive"_s);
const QDBusObjectPath blockPath(u"/block"_s);

UDisksObjects withPartition() {
    return {
        {drivePath,
         {{u"org.freedesktop.UDisks2.Drive"_s, {{u"Removable"_s, true}, {u"ConnectionBus"_s, u"usb"_s}}}}},
        {blockPath,
         {{u"org.freedesktop.UDisks2.Block"_s,
           {{u"Device"_s, "/dev/sda1\0"_ba},
            {u"Drive"_s, QVariant::fromValue(drivePath)},
            {u"HintSystem"_s, false}}},
          {u"org.freedesktop.UDisks2.Filesystem"_s, {}},
          {u"org.freedesktop.UDisks2.Partition"_s, {}}}}};
}

} // namespace

/// Which objects of UDisks2 are partitions of a flash drive.
class FlashPartitionTest : public QObject {
    Q_OBJECT

private slots:
    void nameIsTakenFromTheDeviceFile_data();
    void nameIsTakenFromTheDeviceFile();
    void partitionOfAFlashDriveCounts();
    void propertiesDecide_data();
    void propertiesDecide();
    void missingInterfaceDecides_data();
    void missingInterfaceDecides();
    void missingDriveIsNoFlash();
    void unknownObjectIsNothing();
};

void FlashPartitionTest::nameIsTakenFromTheDeviceFile_data() {
    QTest::addColumn<QByteArray>("device");
    QTest::addColumn<QString>("name");
    QTest::newRow("partition") << "/dev/sda1"_ba << u"sda1"_s;
    QTest::newRow("closing NUL") << "/dev/sda1\0"_ba << u"sda1"_s;
    QTest::newRow("more after the NUL") << "/dev/sda1\0/../x2"_ba << u"sda1"_s;
    QTest::newRow("two digits") << "/dev/sdb12"_ba << u"sdb12"_s;
    QTest::newRow("number after p") << "/dev/nvme0n1p2"_ba << u"nvme0n1p2"_s;
    QTest::newRow("hyphen and underscore") << "/dev/a-b_1"_ba << u"a-b_1"_s;
    QTest::newRow("whole disk") << "/dev/sda"_ba << QString();
    QTest::newRow("digit alone") << "/dev/1"_ba << QString();
    QTest::newRow("no bytes") << QByteArray() << QString();
    QTest::newRow("directory alone") << "/dev/"_ba << QString();
    QTest::newRow("below a directory") << "/dev/mapper/disk1"_ba << QString();
    QTest::newRow("out of the directory") << "/dev/../sda1"_ba << QString();
    QTest::newRow("elsewhere") << "/tmp/sda1"_ba << QString();
    QTest::newRow("name alone") << "sda1"_ba << QString();
    QTest::newRow("blank") << "/dev/sd a1"_ba << QString();
    QTest::newRow("line feed at the end") << "/dev/sda1\n"_ba << QString();
    QTest::newRow("dot") << "/dev/sd.1"_ba << QString();
    QTest::newRow("shell's characters") << "/dev/$(reboot)1"_ba << QString();
    QTest::newRow("other script") << "/dev/диск1"_ba << QString();
    QTest::newRow("other digits") << "/dev/sda\u0661"_ba << QString();
    QTest::newRow("no text") << "/dev/\xff\xfe\x31"_ba << QString();
    QTest::newRow("as long as the kernel's")
        << "/dev/" + QByteArray(30, 'a') + '1' << QString(30, u'a') + u'1';
    QTest::newRow("longer") << "/dev/" + QByteArray(31, 'a') + '1' << QString();
}

void FlashPartitionTest::nameIsTakenFromTheDeviceFile() {
    QFETCH(QByteArray, device);
    QFETCH(QString, name);
    QCOMPARE(partitionName(device).value_or(QString()), name);
}

void FlashPartitionTest::partitionOfAFlashDriveCounts() {
    const FlashVerdict verdict = flashVerdict(withPartition(), blockPath);
    QVERIFY(verdict.partition);
    QCOMPARE(verdict.partition->name, u"sda1"_s);
    QCOMPARE(verdict.partition->drive, drivePath);
    QCOMPARE(verdict.refusal, QString());
}

void FlashPartitionTest::propertiesDecide_data() {
    QTest::addColumn<QString>("object");
    QTest::addColumn<QVariantMap>("properties");
    QTest::addColumn<bool>("counts");
    QTest::addColumn<bool>("isRefusedAloud");
    const auto drive = [](const char *row, const QVariantMap &properties, bool counts) {
        QTest::newRow(row) << u"Drive"_s << properties << counts << false;
    };
    const auto block = [](const char *row, const QVariantMap &properties, bool isRefusedAloud) {
        QTest::newRow(row) << u"Block"_s << properties << false << isRefusedAloud;
    };
    const QString removable = u"Removable"_s;
    const QString bus = u"ConnectionBus"_s;
    drive("built-in disk", {{removable, false}, {bus, u""_s}}, false);
    drive("USB disk that says it is fixed", {{removable, false}}, true);
    drive("removable on another bus", {{bus, u""_s}}, true);
    drive("SD slot", {{bus, u"sdio"_s}}, false);
    drive("removable is a text", {{removable, u"true"_s}, {bus, u""_s}}, false);
    drive("removable is a number", {{removable, 1}, {bus, u""_s}}, false);
    drive("bus is bytes", {{removable, false}, {bus, "usb"_ba}}, false);
    block("system device", {{u"HintSystem"_s, true}}, false);
    block("system hint missing", {{u"HintSystem"_s, QVariant()}}, false);
    block("system hint is a number", {{u"HintSystem"_s, 0}}, false);
    block("no drive", {{u"Drive"_s, QVariant::fromValue(QDBusObjectPath(u"/"_s))}}, false);
    block("drive is a text", {{u"Drive"_s, u"/drive"_s}}, false);
    block("device is a text", {{u"Device"_s, u"/dev/sda1"_s}}, true);
    block("device is a list", {{u"Device"_s, QVariantList{1, 2}}}, true);
    block("device missing", {{u"Device"_s, QVariant()}}, true);
    block("name is not plain", {{u"Device"_s, "/dev/a;b1"_ba}}, true);
}

void FlashPartitionTest::propertiesDecide() {
    QFETCH(QString, object);
    QFETCH(QVariantMap, properties);
    QFETCH(bool, counts);
    QFETCH(bool, isRefusedAloud);
    UDisksObjects objects = withPartition();
    objects[object == "Drive"_L1 ? drivePath : blockPath]["org.freedesktop.UDisks2."_L1 + object].insert(
        properties);
    const FlashVerdict verdict = flashVerdict(objects, blockPath);
    QCOMPARE(verdict.partition.has_value(), counts);
    QCOMPARE(!verdict.refusal.isEmpty(), isRefusedAloud);
}

void FlashPartitionTest::missingInterfaceDecides_data() {
    QTest::addColumn<QString>("missing");
    QTest::addColumn<QString>("refusal");
    QTest::newRow("no block device") << u"Block"_s << QString();
    QTest::newRow("no file system") << u"Filesystem"_s << QString();
    QTest::newRow("whole disk") << u"Partition"_s
                                << u"/dev/sda1 has a file system and no partitions; it is not mounted"_s;
}

void FlashPartitionTest::missingInterfaceDecides() {
    QFETCH(QString, missing);
    QFETCH(QString, refusal);
    UDisksObjects objects = withPartition();
    objects[blockPath].remove("org.freedesktop.UDisks2."_L1 + missing);
    const FlashVerdict verdict = flashVerdict(objects, blockPath);
    QVERIFY(!verdict.partition);
    QCOMPARE(verdict.refusal, refusal);
}

void FlashPartitionTest::missingDriveIsNoFlash() {
    UDisksObjects objects = withPartition();
    objects.remove(drivePath);
    QVERIFY(!flashVerdict(objects, blockPath).partition);
}

void FlashPartitionTest::unknownObjectIsNothing() {
    const FlashVerdict verdict = flashVerdict(withPartition(), QDBusObjectPath(u"/elsewhere"_s));
    QVERIFY(!verdict.partition);
    QCOMPARE(verdict.refusal, QString());
}

QTEST_GUILESS_MAIN(FlashPartitionTest)
#include "tst_flashpartition.moc"
