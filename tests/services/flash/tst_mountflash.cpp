// SPDX-License-Identifier: GPL-3.0-or-later
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What the helper that runs as root refuses to do. None of these calls gets as far as a mount.
class MountFlashTest : public QObject {
    Q_OBJECT

private slots:
    void badCallsAreRefused_data();
    void badCallsAreRefused();
    void badOwnersAreRefused();
    void otherMountsBesideTheDriveAreLeftAlone();
};

void MountFlashTest::badCallsAreRefused_data() {
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QByteArray>("reason");
    const auto call = [](const char *row, const QStringList &words, const QByteArray &reason) {
        QTest::newRow(row) << words << "zr-mount-flash: " + reason + '\n';
    };
    const QByteArray usage = "usage: zr-mount-flash mount|unmount NAME";
    call("no words", {}, usage);
    call("no name", {u"mount"_s}, usage);
    call("a word more", {u"mount"_s, u"sda1"_s, u"/"_s}, usage);
    call("other verb", {u"remount"_s, u"sda1"_s}, "no such verb");
    call("empty verb", {QString(), u"sda1"_s}, "no such verb");
    call("verb that is an option", {u"--bind"_s, u"sda1"_s}, "no such verb");
    for (const char *verb : {"mount", "unmount"}) {
        const QString word = QString::fromLatin1(verb);
        for (const char *name : {"", "1", "sda", "/dev/sda1", "../etc1", "sda1/../..1", "sd.1", ".1",
                                 "-o exec1", "sda1\n", "sda1\nx1", "$(id)1", "`id`1", "*1", "a;b1", "диск1"})
            call(qPrintable(u"%1 \"%2\""_s.arg(word, QString::fromUtf8(name))),
                 {word, QString::fromUtf8(name)}, "no name of a partition");
    }
}

void MountFlashTest::badCallsAreRefused() {
    QFETCH(QStringList, words);
    QFETCH(QByteArray, reason);
    QProcess helper;
    helper.start(QStringLiteral(HELPER), words);
    QVERIFY(helper.waitForFinished());
    QCOMPARE(helper.readAllStandardError(), reason);
    QCOMPARE(helper.exitCode(), 1);
}

void MountFlashTest::badOwnersAreRefused() {
    QProcess helper;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"SUDO_UID"_s, u"0,exec"_s);
    helper.setProcessEnvironment(environment);
    helper.start(QStringLiteral(HELPER), {u"mount"_s, u"nosuch1"_s});
    QVERIFY(helper.waitForFinished());
    QCOMPARE(helper.readAllStandardError(), "zr-mount-flash: SUDO_UID and SUDO_GID are no numbers\n"_ba);
    QCOMPARE(helper.exitCode(), 1);
}

void MountFlashTest::otherMountsBesideTheDriveAreLeftAlone() {
    // Mounts of its own: nothing that happens there is seen by the machine.
    const QString line =
        u"mount -t tmpfs media /media && mkdir /media/data1 && mount -t tmpfs data /media/data1 || exit 77\n"
        "%1 unmount data1; echo $?; mountpoint -q /media/data1 && echo mounted"_s.arg(QStringLiteral(HELPER));
    QProcess shell;
    shell.start(u"unshare"_s, {u"--mount"_s, u"sh"_s, u"-c"_s, line});
    QVERIFY(shell.waitForFinished());
    if (shell.exitCode() == 77 || shell.readAllStandardError().startsWith("unshare:"))
        QSKIP("This user may not mount anything.");
    QCOMPARE(shell.readAllStandardOutput(), "1\nmounted\n");
}

QTEST_GUILESS_MAIN(MountFlashTest)
#include "tst_mountflash.moc"
