// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounts.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class MountsTest : public QObject {
    Q_OBJECT

private slots:
    void localFileSystemsAreListed_data();
    void localFileSystemsAreListed();
    void deviceAndTypeAreKept();
    void endlessListIsBounded();
};

void MountsTest::localFileSystemsAreListed_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("directories");
    QTest::newRow("kernel trees have no storage")
        << QByteArray("/dev/mmcblk0p2 / ext4 rw 0 0\nproc /proc proc rw 0 0\nsysfs /sys sysfs rw 0 0\n"
                      "tmpfs /run tmpfs rw 0 0\n/dev/mmcblk0p3 /home ext4 rw 0 0\n")
        << QStringList{u"/"_s, u"/home"_s};
    QTest::newRow("root without a device counts")
        << QByteArray("overlay / overlay rw 0 0\n") << QStringList{u"/"_s};
    QTest::newRow("network file systems could block")
        << QByteArray("server:/share /mnt nfs rw 0 0\n//server/share /mnt2 cifs rw 0 0\n") << QStringList();
    QTest::newRow("a device bound to a second place counts once")
        << QByteArray("/dev/sda1 / ext4 rw 0 0\n/dev/sda1 /srv ext4 rw 0 0\n") << QStringList{u"/"_s};
    QTest::newRow("blanks and backslashes in names")
        << QByteArray("/dev/sdb1 /media/my\\040drive\\134x vfat rw 0 0\n")
        << QStringList{u"/media/my drive\\x"_s};
    QTest::newRow("a backslash without digits stays")
        << QByteArray("/dev/sdb1 /a\\ vfat\n/dev/sdb2 /b\\9z9 vfat\n/dev/sdb3 /c\\777 vfat\n")
        << QStringList{u"/a\\"_s, u"/b\\9z9"_s, u"/c\\777"_s};
    QTest::newRow("empty") << QByteArray() << QStringList();
    QTest::newRow("cut off") << QByteArray("/dev/sda1 /") << QStringList();
    QTest::newRow("binary") << QByteArray("\0\xff \xfe \1\n", 7) << QStringList();
}

void MountsTest::localFileSystemsAreListed() {
    QFETCH(const QByteArray, text);
    QStringList directories;
    for (const Mount &mount : localMountsIn(text))
        directories.append(mount.directory);
    QTEST(directories, "directories");
}

void MountsTest::deviceAndTypeAreKept() {
    const Mount mount = localMountsIn("/dev/sda1 / ext4 rw,relatime 0 0\n").first();
    QCOMPARE(mount.device, u"/dev/sda1"_s);
    QCOMPARE(mount.type, u"ext4"_s);
}

void MountsTest::endlessListIsBounded() {
    QByteArray text;
    for (int number = 0; number < 10'000; ++number)
        text += "/dev/x" + QByteArray::number(number) + " /mnt/" + QByteArray::number(number) + " ext4\n";
    QCOMPARE(localMountsIn(text).size(), 256);
}

QTEST_GUILESS_MAIN(MountsTest)
#include "tst_mounts.moc"
