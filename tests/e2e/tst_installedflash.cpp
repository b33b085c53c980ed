// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "filesbelow.h"
#include "standinprograms.h"
#include "testconfig.h"
#include "xserver.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QProcess>
#include <QTest>
#include <QTranslator>

#include <csignal>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int copyTime = 60'000;

const QByteArray fastRsync = "exec /usr/bin/rsync \"$@\"";
/// Tells its process number, and is still at work when the test interferes.
const QByteArray slowRsync = "echo $$ >$0.log; exec /usr/bin/rsync --bwlimit=100 \"$@\"";

/// Names that FAT takes as well.
FilesBelow reports() {
    FilesBelow files{{"empty", QByteArray()},
                     {"\xd0\xbe\xd1\x82\xd1\x87\xd1\x91\xd1\x82 100 % %1.txt", "two"},
                     {"traces/deep/.hidden", QByteArray(70'000, '\xa5')}};
    for (int i = 0; i < 8; ++i)
        files["traces/" + QByteArray::number(i)] = QByteArray(50'000, static_cast<char>('a' + i));
    return files;
}

QString text(const char *context, const char *source) {
    return QCoreApplication::translate(context, source);
}

} // namespace

/// The installed launcher, the installed simulator and the real rsync, from the drive's coming to its going.
class InstalledFlashTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void yesCopiesTheReportsAndShowsHowFarItIs();
    void noCopiesNothing();
    void twoExportsInARow();
    void driveRemovedWhileItIsAskedAboutClosesTheQuestion();
    void pulledDriveIsToldAndTheNextExportIsWhole();
    void secondDriveIsTold();
    void mountFailureIsTold();
    void oddPartitionNamesAreTakenAsTheyAre_data();
    void oddPartitionNamesAreTakenAsTheyAre();
    void keysOfTheInstrumentWorkBesideTheQuestion();
    void copyEndsWithTheLauncher_data();
    void copyEndsWithTheLauncher();
    void fullDriveDoesNotKeepTheQuestionOpen();

private:
    static QString flash(const QStringList &words) {
        QProcess simulator;
        simulator.start(QStringLiteral(E2E_TREE "/bin/zr-simulator"), QStringList{u"flash"_s} + words);
        simulator.waitForFinished();
        return QString::fromUtf8(simulator.readAllStandardOutput());
    }
    static void announce(const QString &signal, const QVariant &argument) {
        QDBusMessage message = QDBusMessage::createSignal(u"/"_s, u"zr.flash"_s, signal);
        message.setArguments({argument});
        QDBusConnection::sessionBus().send(message);
    }
    static QString host(const QString &path) { return qEnvironmentVariable("ZR_SYSROOT") + path; }
    static QString source() { return QDir::homePath() + "/reports"_L1; }
    static FilesBelow copied(const QString &drive) { return readFiles(host("/media/"_L1 + drive)); }
    /// What the launcher has stored for the plug-ins.
    static QString stored(const QString &key) { return TestConfig::stored("flash/"_L1 + key); }
    static QString question() {
        return text("FlashDialog",
                    "Do you want to copy all saved reports and trace files to flash?\n\n They will be saved "
                    "to \"%1\" folder of\n a root directory of your flash card.\n\n All following reports "
                    "and trace files will be saved to device\n as well as to flash card.")
            .arg(u"reports"_s);
    }
    static QString pulledDrive() {
        return text("FlashManager", "Error: ") + u'\n' +
               text("FlashManager", "USB mass-storage device is plugged out");
    }
    bool pressYes() { return launcher->press(text("FlashDialog", "Yes")); }
    bool pressNo() { return launcher->press(text("FlashDialog", "No")); }
    bool pressOk() { return launcher->press(text("WarningWindow", "OK")); }
    bool isRsyncGone() const {
        const int number = programs->log(u"rsync"_s).trimmed().toInt();
        // A group without members is gone as well.
        return number > 0 && ::kill(number, 0) != 0 && ::kill(-number, 0) != 0;
    }
    /// Every file there is a whole one.
    static bool areWhole(const FilesBelow &files) {
        const FilesBelow wanted = reports();
        for (auto file = files.cbegin(); file != files.cend(); ++file) {
            if (!file.key().startsWith(".zrfops-incomplete/") &&
                wanted.value(file.key().mid(qstrlen("reports/")), "no such file") != file.value())
                return false;
        }
        return true;
    }
    /// Inserts the drive and waits until it is asked about.
    void insert(const QString &name);
    void exportTo(const QString &name);
    /// Comes back in the middle of a copy.
    void beginToCopy(const QString &name);

    QTranslator translator;
    TestConfig config;
    std::unique_ptr<StandInPrograms> programs;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledFlashTest::initTestCase() {
    QVERIFY2(QFile::exists(u"/usr/bin/rsync"_s), "rsync is not installed");
    if (translator.load(QStringLiteral(CATALOGUE)))
        QCoreApplication::installTranslator(&translator);
}

void InstalledFlashTest::init() {
    config = TestConfig();
    config.set(u"paths/main"_s, u"reports"_s);
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    QVERIFY(QDir().mkpath(host(u"/var/run/tester"_s)));
    QDir(source()).removeRecursively();
    writeFiles(source(), reports());
    programs = std::make_unique<StandInPrograms>();
    launcher = std::make_unique<LauncherProcess>();
}

void InstalledFlashTest::cleanup() {
    launcher.reset();
    programs.reset();
    flash({u"remove"_s});
    QDir(host(u"/var/lib/simulated-flash"_s)).removeRecursively();
    QCOMPARE(readFiles(source()), reports());
}

void InstalledFlashTest::insert(const QString &name) {
    QVERIFY(!flash({u"insert"_s, name}).isEmpty());
    QTRY_COMPARE(launcher->message(), question());
}

void InstalledFlashTest::exportTo(const QString &name) {
    programs->put(u"rsync"_s, fastRsync);
    insert(name);
    QVERIFY(pressYes());
    QTRY_COMPARE_WITH_TIMEOUT(launcher->message(), QString(), copyTime);
    QTRY_COMPARE(stored(u"save"_s), u"true"_s);
    QCOMPARE(stored(u"dir"_s), "/media/"_L1 + name);
    QCOMPARE(readFiles(host("/media/"_L1 + name + "/reports"_L1)), reports());
    QCOMPARE(copied(name).size(), reports().size());
}

void InstalledFlashTest::beginToCopy(const QString &name) {
    programs->put(u"rsync"_s, slowRsync);
    insert(name);
    QVERIFY(pressYes());
    int percent = 0;
    QTRY_VERIFY((percent = launcher->progress()) > 0 && percent < 100);
}

void InstalledFlashTest::yesCopiesTheReportsAndShowsHowFarItIs() {
    QVERIFY2(launcher->start(), launcher->errors());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    programs->put(u"rsync"_s, slowRsync);
    insert(u"sda1"_s);
    QCOMPARE(launcher->progress(), -1);
    QVERIFY(pressYes());
    int first = 0;
    int later = 0;
    QTRY_VERIFY((first = launcher->progress()) > 0 && first < 100);
    QTRY_VERIFY((later = launcher->progress()) > first && later < 100);
    QCOMPARE(launcher->message(), question());
    QTRY_COMPARE_WITH_TIMEOUT(launcher->message(), QString(), copyTime);
    QTRY_COMPARE(stored(u"save"_s), u"true"_s);
    QCOMPARE(stored(u"dir"_s), u"/media/sda1"_s);
    QCOMPARE(readFiles(host(u"/media/sda1/reports"_s)), reports());
    QCOMPARE(copied(u"sda1"_s).size(), reports().size());
    QVERIFY(isRsyncGone());
    flash({u"remove"_s});
    QTRY_COMPARE(stored(u"dir"_s), QString());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    QCOMPARE(launcher->message(), QString());
}

void InstalledFlashTest::noCopiesNothing() {
    QVERIFY2(launcher->start(), launcher->errors());
    insert(u"sda1"_s);
    QVERIFY(pressNo());
    QTRY_COMPARE(launcher->message(), QString());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    QCOMPARE(stored(u"dir"_s), u"/media/sda1"_s);
    QCOMPARE(copied(u"sda1"_s), FilesBelow());
}

void InstalledFlashTest::twoExportsInARow() {
    QVERIFY2(launcher->start(), launcher->errors());
    for (const QString &name : {u"sda1"_s, u"sda1"_s, u"sdb1"_s}) {
        exportTo(name);
        flash({u"remove"_s});
        QTRY_COMPARE(stored(u"dir"_s), QString());
        QCOMPARE(launcher->message(), QString());
    }
}

void InstalledFlashTest::driveRemovedWhileItIsAskedAboutClosesTheQuestion() {
    QVERIFY2(launcher->start(), launcher->errors());
    insert(u"sda1"_s);
    flash({u"remove"_s});
    QTRY_COMPARE(launcher->message(), QString());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    exportTo(u"sda1"_s);
}

void InstalledFlashTest::pulledDriveIsToldAndTheNextExportIsWhole() {
    QVERIFY2(launcher->start(), launcher->errors());
    beginToCopy(u"sda1"_s);
    flash({u"remove"_s});
    QTRY_COMPARE(launcher->message(), pulledDrive());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    QCOMPARE(stored(u"dir"_s), QString());
    QTRY_VERIFY(isRsyncGone());
    QVERIFY(pressOk());
    QTRY_COMPARE(launcher->message(), QString());

    insert(u"sda1"_s);
    QVERIFY(areWhole(copied(u"sda1"_s)));
    QVERIFY(copied(u"sda1"_s).size() < reports().size());
    QVERIFY(pressNo());
    flash({u"remove"_s});
    QTRY_COMPARE(stored(u"dir"_s), QString());
    exportTo(u"sda1"_s);
}

void InstalledFlashTest::secondDriveIsTold() {
    QVERIFY2(launcher->start(), launcher->errors());
    insert(u"sda1"_s);
    announce(u"inserted"_s, u"sdb1"_s);
    QTRY_COMPARE(launcher->message(),
                 text("FlashSpy", "Only one flash card can be used. Please, remove currently installed"));
    QVERIFY(pressOk());
    QTRY_COMPARE(launcher->message(), question());
    QCOMPARE(stored(u"dir"_s), u"/media/sda1"_s);
    QVERIFY(pressNo());
    QTRY_COMPARE(launcher->message(), QString());
}

void InstalledFlashTest::mountFailureIsTold() {
    QVERIFY2(launcher->start(), launcher->errors());
    flash({u"mount-failed"_s, u"33"_s});
    QTRY_COMPARE(launcher->message(), text("FlashSpy", "Error %1:").arg(33) + u'\n' +
                                          text("FlashManager", "incorrect invocation or permissions") +
                                          u'\n' + text("FlashManager", "mount failure") + u'\n');
    QVERIFY(pressOk());
    QTRY_COMPARE(launcher->message(), QString());
    exportTo(u"sda1"_s);
}

void InstalledFlashTest::oddPartitionNamesAreTakenAsTheyAre_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isPartition");
    QTest::newRow("whole drive") << u"sda"_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("digit alone") << u"1"_s << false;
    QTest::newRow("line feed at the end") << u"sda1\n"_s << false;
    QTest::newRow("digit of another script") << u"sda\u0661"_s << false;
    QTest::newRow("one letter") << u"a1"_s << true;
    QTest::newRow("line feeds") << u"s\nd\n1"_s << true;
    QTest::newRow("Cyrillic") << u"флешка1"_s << true;
    QTest::newRow("blanks and per cent signs") << u"%1 %2 1"_s << true;
    QTest::newRow("way out") << u"../etc1"_s << true;
    QTest::newRow("4096 characters") << QString(4095, u'x') + u'1' << true;
}

void InstalledFlashTest::oddPartitionNamesAreTakenAsTheyAre() {
    QFETCH(QString, name);
    QFETCH(bool, isPartition);
    QVERIFY2(launcher->start(), launcher->errors());
    announce(u"inserted"_s, name);
    if (isPartition) {
        QTRY_COMPARE(launcher->message(), question());
        QCOMPARE(stored(u"dir"_s), "/media/"_L1 + name);
        // Nothing is mounted there.
        QVERIFY(pressYes());
        QTRY_COMPARE(launcher->message(), QString());
        QTRY_VERIFY(launcher->errors().contains("Export to flash: error "));
        QVERIFY(!QFile::exists(host("/media/"_L1 + name)));
        announce(u"removed"_s, name);
        QTRY_COMPARE(stored(u"dir"_s), QString());
    }
    // Comes behind the other signals.
    announce(u"mountFailed"_s, 32);
    QTRY_COMPARE(launcher->message(), text("FlashSpy", "Error %1:").arg(32) + u'\n' +
                                          text("FlashManager", "mount failure") + u'\n');
    QCOMPARE(stored(u"dir"_s), QString());
    QVERIFY(pressOk());
    QTRY_COMPARE(launcher->message(), QString());
    exportTo(u"sda1"_s);
}

void InstalledFlashTest::keysOfTheInstrumentWorkBesideTheQuestion() {
    const XServer display;
    QVERIFY(!display.display().isEmpty());
    launcher->environment.insert(u"DISPLAY"_s, display.display());
    QVERIFY2(launcher->start({u"-platform"_s, u"xcb"_s}), launcher->errors());
    QTRY_VERIFY(launcher->isActive());
    insert(u"sda1"_s);
    QTRY_VERIFY(launcher->isActive());
    QVERIFY(display.key({u"Home"_s}));
    QVERIFY(display.key({u"Pause"_s}));
    QTRY_COMPARE(launcher->message(), text("QObject", "Do you really mean to power off device?"));
    QTRY_VERIFY(launcher->isActive());
    QVERIFY(display.key({u"Escape"_s}));
    QTRY_COMPARE(launcher->message(), question());
    QTRY_VERIFY(launcher->isActive());
    QVERIFY(display.key({u"Escape"_s}));
    QTRY_COMPARE(launcher->message(), QString());
    QTRY_COMPARE(stored(u"save"_s), u"false"_s);
    QVERIFY(!QFile::exists(QDir::homePath() + "/sudo.log"_L1));

    // A running copy is not ended by keys, and goes on behind the power question.
    flash({u"remove"_s});
    QTRY_COMPARE(stored(u"dir"_s), QString());
    beginToCopy(u"sda1"_s);
    QTRY_VERIFY(launcher->isActive());
    QVERIFY(display.key({u"Escape"_s}));
    QVERIFY(display.key({u"Pause"_s}));
    QTRY_COMPARE(launcher->message(), text("QObject", "Do you really mean to power off device?"));
    QTRY_COMPARE_WITH_TIMEOUT(readFiles(host(u"/media/sda1/reports"_s)), reports(), copyTime);
    QTRY_VERIFY(isRsyncGone());
    QTRY_VERIFY(launcher->isActive());
    QVERIFY(display.key({u"Escape"_s}));
    QTRY_COMPARE_WITH_TIMEOUT(launcher->message(), QString(), copyTime);
    QTRY_COMPARE(stored(u"save"_s), u"true"_s);
}

void InstalledFlashTest::copyEndsWithTheLauncher_data() {
    QTest::addColumn<int>("signal");
    QTest::addColumn<int>("status");
    QTest::newRow("stopped") << SIGTERM << 0;
    QTest::newRow("killed") << SIGKILL << -1;
}

void InstalledFlashTest::copyEndsWithTheLauncher() {
    QFETCH(int, signal);
    QFETCH(int, status);
    QVERIFY2(launcher->start(), launcher->errors());
    beginToCopy(u"sda1"_s);
    QCOMPARE(launcher->stop(signal), status);
    QTRY_VERIFY(isRsyncGone());
    QVERIFY(areWhole(copied(u"sda1"_s)));
    QVERIFY(copied(u"sda1"_s).size() < reports().size());
    flash({u"remove"_s});
    launcher = std::make_unique<LauncherProcess>();
    QVERIFY2(launcher->start(), launcher->errors());
    exportTo(u"sda1"_s);
}

void InstalledFlashTest::fullDriveDoesNotKeepTheQuestionOpen() {
    QVERIFY2(launcher->start(), launcher->errors());
    const QString kind = flash({u"insert"_s, u"sda1"_s, u"--size"_s, u"1"_s});
    if (!kind.contains(u" file system "_s))
        QSKIP("This user may not mount a small file system.");
    QTRY_COMPARE(launcher->message(), question());
    // The rest of the drive is somebody else's.
    writeFiles(host(u"/media/sda1"_s), {{"other", QByteArray(700'000, 'x')}});
    QVERIFY(pressYes());
    QTRY_COMPARE_WITH_TIMEOUT(launcher->message(), QString(), copyTime);
    QTRY_VERIFY2(launcher->errors().contains("Export to flash: error 11: "), launcher->errors());
    FilesBelow files = copied(u"sda1"_s);
    QCOMPARE(files.take("other").size(), 700'000);
    QVERIFY(areWhole(files));
    flash({u"remove"_s});
    QTRY_COMPARE(stored(u"dir"_s), QString());
    exportTo(u"sdb1"_s);
}

QTEST_GUILESS_MAIN(InstalledFlashTest)
#include "tst_installedflash.moc"
