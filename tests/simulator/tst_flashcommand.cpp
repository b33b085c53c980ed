// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The simulator's flash drive as a shell and a launcher see it.
class FlashCommandTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void driveIsMountedAnnouncedAndRemoved();
    void kindOfTheDriveIsSaidAsItIs();
    void sizeOfAMountedDriveIsAsOrdered();
    void contentsStayWhileTheDriveIsOut();
    void drivesHaveContentsOfTheirOwn();
    void mountFailureCarriesItsExitCode();
    void secondDriveIsRefused();
    void removalWithoutADriveIsRefused();
    void badOrdersAreRefusedWithHelp_data();
    void badOrdersAreRefusedWithHelp();
    void driveWithoutABusIsToldOf();

public slots:
    void take(const QDBusMessage &message) {
        signalsSeen.append(u"%1 %2 %3"_s.arg(message.member(), message.signature(),
                                             message.arguments().value(0).toString()));
    }

private:
    struct Outcome {
        int status;
        QString output;
        QString errors;
    };
    static Outcome run(const QStringList &words,
                       const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment()) {
        QProcess simulator;
        simulator.setProcessEnvironment(environment);
        simulator.start(QStringLiteral(SIMULATOR), QStringList{u"flash"_s} + words);
        simulator.waitForFinished();
        return {simulator.exitCode(), QString::fromUtf8(simulator.readAllStandardOutput()),
                QString::fromUtf8(simulator.readAllStandardError())};
    }
    static QString media(const QString &path) {
        return qEnvironmentVariable("ZR_SYSROOT") + "/media/"_L1 + path;
    }
    static bool isMountPoint(const QString &directory) {
        return QProcess::execute(u"mountpoint"_s, {u"-q"_s, directory}) == 0;
    }
    static QByteArray read(const QString &name) {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static bool write(const QString &name, const QByteArray &data) {
        QFile file(name);
        return file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(data) == data.size();
    }

    QStringList signalsSeen;
};

void FlashCommandTest::initTestCase() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    for (const QString &name : {u"inserted"_s, u"removed"_s, u"mountFailed"_s})
        QVERIFY(bus.connect(QString(), u"/"_s, u"zr.flash"_s, name, this, SLOT(take(QDBusMessage))));
}

void FlashCommandTest::cleanup() {
    run({u"remove"_s});
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/var/lib/simulated-flash"_L1).removeRecursively();
    // What was announced last has come as well, then.
    run({u"mount-failed"_s, u"0"_s});
    QTRY_VERIFY(!signalsSeen.isEmpty() && signalsSeen.last() == "mountFailed i 0"_L1);
    signalsSeen.clear();
}

void FlashCommandTest::driveIsMountedAnnouncedAndRemoved() {
    QCOMPARE(run({u"insert"_s, u"sda1"_s}).status, 0);
    QTRY_COMPARE(signalsSeen, QStringList{u"inserted s sda1"_s});
    QVERIFY(QFile::exists(media(u"sda1"_s)));
    QVERIFY(write(media(u"sda1/file"_s), "1"));
    QCOMPARE(run({u"remove"_s}).status, 0);
    QTRY_COMPARE(signalsSeen, QStringList({u"inserted s sda1"_s, u"removed s sda1"_s}));
    QVERIFY(!QFile::exists(media(u"sda1"_s)));
}

void FlashCommandTest::kindOfTheDriveIsSaidAsItIs() {
    const QString output = run({u"insert"_s, u"sda1"_s}).output;
    QVERIFY2(output.endsWith(" at "_L1 + media(u"sda1"_s) + u'\n'), qPrintable(output));
    QVERIFY(output.startsWith("sda1: "_L1));
    QCOMPARE(output.contains(" file system "_L1), isMountPoint(media(u"sda1"_s)));
    QCOMPARE(output.contains("a directory of no limited size"_L1), !isMountPoint(media(u"sda1"_s)));
}

void FlashCommandTest::sizeOfAMountedDriveIsAsOrdered() {
    QCOMPARE(run({u"insert"_s, u"sda1"_s, u"--size"_s, u"4"_s}).status, 0);
    if (!isMountPoint(media(u"sda1"_s)))
        QSKIP("This user may not mount a file system.");
    constexpr int megabyte = 1024 * 1024;
    QVERIFY(write(media(u"sda1/fits"_s), QByteArray(megabyte, 'x')));
    QVERIFY(!write(media(u"sda1/does not fit"_s), QByteArray(4 * megabyte, 'x')));
}

void FlashCommandTest::contentsStayWhileTheDriveIsOut() {
    run({u"insert"_s, u"sda1"_s});
    QVERIFY(write(media(u"sda1/file"_s), "kept"));
    run({u"remove"_s});
    QCOMPARE(run({u"insert"_s, u"sda1"_s}).status, 0);
    QCOMPARE(read(media(u"sda1/file"_s)), "kept");
}

void FlashCommandTest::drivesHaveContentsOfTheirOwn() {
    run({u"insert"_s, u"sda1"_s});
    QVERIFY(write(media(u"sda1/file"_s), "of the first"));
    run({u"remove"_s});
    QCOMPARE(run({u"insert"_s, u"sdb1"_s}).status, 0);
    QVERIFY(!QFile::exists(media(u"sdb1/file"_s)));
    QVERIFY(!QFile::exists(media(u"sda1"_s)));
}

void FlashCommandTest::mountFailureCarriesItsExitCode() {
    for (const QString &code : {u"33"_s, u"0"_s, u"-1"_s})
        QCOMPARE(run({u"mount-failed"_s, code}).status, 0);
    QTRY_COMPARE(signalsSeen,
                 QStringList({u"mountFailed i 33"_s, u"mountFailed i 0"_s, u"mountFailed i -1"_s}));
    QVERIFY(QDir(media(QString())).isEmpty());
}

void FlashCommandTest::secondDriveIsRefused() {
    run({u"insert"_s, u"sda1"_s});
    for (const QString &name : {u"sda1"_s, u"sdb1"_s}) {
        const Outcome again = run({u"insert"_s, name});
        QCOMPARE(again.status, 1);
        QCOMPARE(again.errors, u"zr-simulator: sda1 is inserted already\n"_s);
    }
    QVERIFY(!QFile::exists(media(u"sdb1"_s)));
    QTRY_COMPARE(signalsSeen, QStringList{u"inserted s sda1"_s});
}

void FlashCommandTest::removalWithoutADriveIsRefused() {
    const Outcome outcome = run({u"remove"_s});
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, u"zr-simulator: no drive is inserted\n"_s);
}

void FlashCommandTest::badOrdersAreRefusedWithHelp_data() {
    QTest::addColumn<QStringList>("words");
    QTest::newRow("no order") << QStringList();
    QTest::newRow("unknown order") << QStringList{u"eject"_s};
    QTest::newRow("no name") << QStringList{u"insert"_s};
    QTest::newRow("empty name") << QStringList{u"insert"_s, QString()};
    QTest::newRow("name that leads out") << QStringList{u"insert"_s, u"../etc1"_s};
    QTest::newRow("name of the directory above") << QStringList{u"insert"_s, u".."_s};
    QTest::newRow("no size") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s};
    QTest::newRow("size of nothing") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s, u"0"_s};
    QTest::newRow("size below nothing") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s, u"-5"_s};
    QTest::newRow("size in words") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s, u"big"_s};
    QTest::newRow("size beyond measure") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s, u"4097"_s};
    QTest::newRow("unknown option") << QStringList{u"insert"_s, u"sda1"_s, u"--speed"_s, u"5"_s};
    QTest::newRow("too many words") << QStringList{u"insert"_s, u"sda1"_s, u"--size"_s, u"5"_s, u"6"_s};
    QTest::newRow("removal with a name") << QStringList{u"remove"_s, u"sda1"_s};
    QTest::newRow("no exit code") << QStringList{u"mount-failed"_s};
    QTest::newRow("exit code in words") << QStringList{u"mount-failed"_s, u"bad"_s};
    QTest::newRow("exit code that is too large") << QStringList{u"mount-failed"_s, u"2147483648"_s};
}

void FlashCommandTest::badOrdersAreRefusedWithHelp() {
    QFETCH(QStringList, words);
    const Outcome outcome = run(words);
    QCOMPARE(outcome.status, 2);
    QVERIFY(outcome.errors.startsWith("zr-simulator flash: a USB flash drive."_L1));
    QVERIFY(outcome.output.isEmpty());
    QVERIFY(QDir(media(QString())).isEmpty());
}

void FlashCommandTest::driveWithoutABusIsToldOf() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DBUS_SESSION_BUS_ADDRESS"_s, u"unix:path=/nowhere"_s);
    const Outcome outcome = run({u"insert"_s, u"sda1"_s}, environment);
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.errors, u"zr-simulator: there is no session bus to tell it on\n"_s);
}

QTEST_GUILESS_MAIN(FlashCommandTest)
#include "tst_flashcommand.moc"
