// SPDX-License-Identifier: GPL-3.0-or-later
#include "dircopier.h"

#include "errorstream.h"
#include "filesbelow.h"
#include "smalldrive.h"
#include "standinprograms.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

#include <csignal>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int longTime = 60000;

/// A source and a place for the copy, and what the copier says.
struct Desk {
    Desk()
        : progress(&copier, &DirCopier::setProgress),
          errors(&copier, &DirCopier::rsyncErrorHappened),
          ends(&copier, &DirCopier::cmdFinished) {
        QDir(directory.path()).mkpath(u"reports"_s);
        QDir(directory.path()).mkpath(u"drive"_s);
    }

    QString source() const { return directory.filePath(u"reports"_s); }
    QString drive() const { return directory.filePath(u"drive"_s); }
    void begin(const QString &from, const QString &to) {
        QStringList sources{from};
        copier.copyDir(sources, to);
    }
    bool isEnded() {
        return QTest::qWaitFor([this] { return ends.size() == 1; }, longTime);
    }
    bool copy() { return begin(source(), drive()), isEnded(); }
    int exitCode() const { return ends.value(0).value(0).toInt(); }
    int errorCode() const { return errors.value(0).value(0).toInt(); }
    QString errorText() const { return errors.value(0).value(1).toString(); }

    QTemporaryDir directory;
    DirCopier copier;
    QSignalSpy progress;
    QSignalSpy errors;
    QSignalSpy ends;
};

/// rsync itself, but so slow that it is still at work when the test interferes. Its process number is logged.
const QByteArray slowRsync = "echo $$ >>$0.log; exec /usr/bin/rsync --bwlimit=200 \"$@\"";

bool isGone(const QByteArray &process) {
    const auto number = process.trimmed().toInt();
    // A group without members is gone as well.
    return number > 0 && ::kill(number, 0) != 0 && ::kill(-number, 0) != 0;
}

QStringList namesIn(const QString &directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

} // namespace

class DirCopierTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY2(QFile::exists(u"/usr/bin/rsync"_s), "rsync is not installed"); }

    void treeIsTheSameByteForByte();
    void secondCopyAddsWhatIsNew();
    void sourceWithASlashGivesItsContents();
    void severalSourcesAreCopiedByTheirNames();
    void sourceThatIsALinkIsCopiedByItsOwnName();
    void linksDevicesAndSocketsStayBehind();
    void emptySourceIsCopied();
    void everyFileIsCounted();
    void progressMovesWithinALongFile();
    void nothingIsLeftToDoOnlyWhenTheDriveHasIt();
    void requestThatNamesNothingIsRefused_data();
    void requestThatNamesNothingIsRefused();
    void missingDriveIsNotMadeUp();
    void fullDriveIsToldAndWholeFilesStay();
    void driveThatCannotBeWrittenIsTold();
    void driveThatDoesNotTakeTheDataIsTold();
    void unreadableFilesAreToldAndTheOthersCopied();
    void exitCodeBecomesASentence_data();
    void exitCodeBecomesASentence();
    void killedRsyncIsTold();
    void missingRsyncIsTold();
    void garbageIsNoProgress();
    void floodOfMessagesIsCut();
    void cancelledCopyLeavesNoHalfFile();
    void cancelledCopyEndsOnceAndAnotherWorks();
    void copyEndsWithItsCopier();
    void secondRequestIsRefusedAndTheFirstGoesOn();
    void errorHandlerMayCancel();
    void leftoversOfAPulledDriveAreRemoved();
    void linkInPlaceOfTheLeftoversIsNotFollowed();
    void cancelledCopyTakesItsLeftoversAway();
    void copyAfterACancelledOneWaitsForItsCleaning();
    void fileInTheWayIsKept();
    void linkInTheWayIsNotFollowed();
    void driveBelowTheSourceIsNotCopiedIntoItself();
    void progressHandlerMayCancel();
    void copyCancelledWhileTheDriveIsFlushedEndsAtOnce();
    void removalIsHeardBeforeTheEndOfAFailedCopy();
    void missingSourceIsTold();
    void fileThatGrowsIsCopiedWhole();
};

void DirCopierTest::treeIsTheSameByteForByte() {
    Desk desk;
    writeFiles(desk.source(), oddlyNamedFiles());
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(desk.ends.at(0).at(1).value<QProcess::ExitStatus>(), QProcess::NormalExit);
    QVERIFY(desk.errors.isEmpty());
    QCOMPARE(readFiles(desk.drive() + "/reports"_L1), oddlyNamedFiles());
    QCOMPARE(readFiles(desk.source()), oddlyNamedFiles());
    QCOMPARE(namesIn(desk.drive()), QStringList(u"reports"_s));
    QVERIFY(!desk.copier.isCopying());
}

void DirCopierTest::secondCopyAddsWhatIsNew() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    writeFiles(desk.drive(), {{"reports/b", "of the drive"}});
    QVERIFY(desk.copy());
    desk.ends.clear();
    writeFiles(desk.source(), {{"c", "2"}});
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(readFiles(desk.drive()),
             FilesBelow({{"reports/a", "1"}, {"reports/b", "of the drive"}, {"reports/c", "2"}}));
}

void DirCopierTest::sourceWithASlashGivesItsContents() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}, {"b/c", "2"}});
    desk.begin(desk.source() + u'/', desk.drive());
    QVERIFY(desk.isEnded());
    QCOMPARE(readFiles(desk.drive()), FilesBelow({{"a", "1"}, {"b/c", "2"}}));
}

void DirCopierTest::severalSourcesAreCopiedByTheirNames() {
    Desk desk;
    writeFiles(desk.source(), {{"x/1", "1"}, {"y/2", "2"}});
    QStringList sources{desk.source() + "/x"_L1, desk.source() + "/y"_L1};
    desk.copier.copyDir(sources, desk.drive());
    QVERIFY(desk.isEnded());
    QCOMPARE(readFiles(desk.drive()), FilesBelow({{"x/1", "1"}, {"y/2", "2"}}));
}

void DirCopierTest::sourceThatIsALinkIsCopiedByItsOwnName() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    const QString link = desk.directory.filePath(u"saved"_s);
    QVERIFY(QFile::link(desk.source(), link));
    desk.begin(link, desk.drive());
    QVERIFY(desk.isEnded());
    QCOMPARE(readFiles(desk.drive()), FilesBelow({{"saved/a", "1"}}));
}

void DirCopierTest::linksDevicesAndSocketsStayBehind() {
    Desk desk;
    writeFiles(desk.directory.path(), {{"secret/key", "1"}, {"reports/a", "2"}});
    QVERIFY(QFile::link(desk.directory.filePath(u"secret"_s), desk.source() + "/out"_L1));
    QVERIFY(QFile::link(desk.directory.filePath(u"secret/key"_s), desk.source() + "/file"_L1));
    QVERIFY(QFile::link(desk.source(), desk.source() + "/loop"_L1));
    QCOMPARE(::mkfifo(QFile::encodeName(desk.source() + "/pipe"_L1).constData(), 0600), 0);
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(namesIn(desk.drive() + "/reports"_L1), QStringList(u"a"_s));
}

void DirCopierTest::emptySourceIsCopied() {
    Desk desk;
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(namesIn(desk.drive()), QStringList(u"reports"_s));
    QCOMPARE(desk.progress.last().at(0).toInt(), 0);
}

void DirCopierTest::everyFileIsCounted() {
    // In memory, where it may be: fifty thousand files take minutes on a slow disk.
    const SmallDrive source(500000);
    const SmallDrive drive(500000);
    const int count = source.isMounted() && drive.isMounted() ? 50000 : 500;
    FilesBelow files;
    for (int i = 0; i < count; ++i)
        files["reports/" + QByteArray::number(i % 100) + '/' + QByteArray::number(i)] = QByteArray::number(i);
    writeFiles(source.path(), files);
    Desk desk;
    desk.begin(source.path() + "/reports"_L1, drive.path());
    QVERIFY(desk.isEnded());
    QCOMPARE(readFiles(drive.path()), files);
    QVERIFY(desk.progress.size() > 2);
    const int total = desk.progress.first().at(1).toInt();
    int before = total;
    for (const QList<QVariant> &step : desk.progress) {
        QCOMPARE(step.at(1).toInt(), total);
        QVERIFY(step.at(0).toInt() <= before);
        before = step.at(0).toInt();
    }
    // Each file, the hundred directories and those around them.
    QVERIFY(total >= (count + 100) * 100);
    QCOMPARE(before, 0);
}

void DirCopierTest::progressMovesWithinALongFile() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    Desk desk;
    writeFiles(desk.source(), {{"long", QByteArray(20000000, 'x')}});
    desk.begin(desk.source(), desk.drive());
    QSet<int> counts;
    connect(&desk.copier, &DirCopier::setProgress, this, [&](int left) { counts.insert(left); });
    QTRY_VERIFY2_WITH_TIMEOUT(counts.size() >= 3, "at the start and within the file", longTime);
    QVERIFY(!counts.contains(0));
    QVERIFY(desk.ends.isEmpty());
    desk.copier.cancel();
}

void DirCopierTest::nothingIsLeftToDoOnlyWhenTheDriveHasIt() {
    StandInPrograms programs;
    // Looks at what is there when the drive is flushed.
    programs.put(u"sync"_s, "echo \"$@\" >>$0.log; ls \"$2/reports\" >>$0.log; exec /bin/sync \"$@\"");
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    QByteArray logAtLastStep;
    connect(&desk.copier, &DirCopier::setProgress, this, [&](int left) {
        if (left == 0)
            logAtLastStep = programs.log(u"sync"_s);
    });
    QVERIFY(desk.copy());
    QCOMPARE(logAtLastStep, "--file-system " + QFile::encodeName(desk.drive()) + "\na\n");
}

void DirCopierTest::requestThatNamesNothingIsRefused_data() {
    QTest::addColumn<QStringList>("sources");
    QTest::addColumn<QString>("destination");
    QTest::newRow("no source") << QStringList() << u"/tmp"_s;
    QTest::newRow("empty source") << QStringList(QString()) << u"/tmp"_s;
    QTest::newRow("no destination") << QStringList(u"/tmp"_s) << QString();
}

void DirCopierTest::requestThatNamesNothingIsRefused() {
    QFETCH(QStringList, sources);
    QFETCH(QString, destination);
    Desk desk;
    desk.copier.copyDir(sources, destination);
    QVERIFY2(desk.errors.isEmpty() && desk.ends.isEmpty(), "told from the event loop");
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.errorCode(), 3);
    QCOMPARE(desk.exitCode(), 3);
}

void DirCopierTest::missingDriveIsNotMadeUp() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    QVERIFY(QDir().rmdir(desk.drive()));
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 3);
    QVERIFY(desk.errorText().contains(desk.drive()));
    QVERIFY(!QFile::exists(desk.drive()));
}

void DirCopierTest::fullDriveIsToldAndWholeFilesStay() {
    const SmallDrive small(1024);
    if (!small.isMounted())
        QSKIP("This user may not mount a small file system.");
    Desk desk;
    const FilesBelow files{{"a", QByteArray(500000, 'a')}, {"b", QByteArray(900000, 'b')}};
    writeFiles(desk.source(), files);
    desk.begin(desk.source(), small.path());
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.errorCode(), 11);
    QCOMPARE(desk.exitCode(), 11);
    QVERIFY(desk.errorText().contains(u"No space left on device"_s));
    QCOMPARE(readFiles(small.path()), FilesBelow({{"reports/a", files["a"]}}));
    QCOMPARE(readFiles(desk.source()), files);
}

void DirCopierTest::driveThatCannotBeWrittenIsTold() {
    const SmallDrive small(1024, QString(), true);
    if (!small.isMounted())
        QSKIP("This user may not mount a small file system.");
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    desk.begin(desk.source(), small.path());
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.errorCode(), 11);
    QVERIFY(desk.errorText().contains(u"Read-only file system"_s));
}

void DirCopierTest::driveThatDoesNotTakeTheDataIsTold() {
    StandInPrograms programs;
    programs.put(u"sync"_s, "echo 'sync: error syncing: Input/output error' >&2; exit 1");
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 11);
    QCOMPARE(desk.exitCode(), 11);
    QVERIFY(desk.errorText().contains(u"Input/output error"_s));
    QVERIFY(desk.progress.last().at(0).toInt() > 0);
}

void DirCopierTest::unreadableFilesAreToldAndTheOthersCopied() {
    StandInPrograms programs;
    // Root reads everything.
    if (::getuid() == 0)
        programs.put(u"rsync"_s, "chown 65534 \"$(eval echo \\${$#})\"/.zrfops-incomplete\n"
                                 "exec setpriv --reuid=65534 --clear-groups /usr/bin/rsync \"$@\"");
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}, {"closed", "2"}});
    for (const QString &path : {desk.directory.path(), desk.source(), desk.drive()})
        ::chmod(QFile::encodeName(path).constData(), 0777);
    ::chmod(QFile::encodeName(desk.source() + "/closed"_L1).constData(), 0);
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 23);
    QVERIFY(desk.errorText().contains(u"Permission denied"_s));
    QVERIFY(desk.errorText().contains(u"closed"_s));
    QCOMPARE(readFiles(desk.drive()), FilesBelow({{"reports/a", "1"}}));
}

void DirCopierTest::exitCodeBecomesASentence_data() {
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("sentence");
    QTest::newRow("usage") << 1
                           << u"The copying program did not understand its orders. (rsync: exit code 1)"_s;
    QTest::newRow("vanished") << 24
                              << u"Some files vanished before they could be copied. (rsync: exit code 24)"_s;
    QTest::newRow("unknown") << 127 << u"The copy failed for an unknown reason. (rsync: exit code 127)"_s;
}

void DirCopierTest::exitCodeBecomesASentence() {
    QFETCH(int, code);
    QFETCH(QString, sentence);
    StandInPrograms programs;
    programs.put(u"rsync"_s, "exit " + QByteArray::number(code));
    Desk desk;
    QVERIFY(desk.copy());
    QCOMPARE(desk.errors.size(), 1);
    QCOMPARE(desk.errorCode(), code);
    QCOMPARE(desk.exitCode(), code);
    QCOMPARE(desk.errorText(), sentence);
}

void DirCopierTest::killedRsyncIsTold() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "kill -9 $$");
    Desk desk;
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 20);
    QCOMPARE(desk.exitCode(), 20);
    QCOMPARE(desk.ends.at(0).at(1).value<QProcess::ExitStatus>(), QProcess::CrashExit);
}

void DirCopierTest::missingRsyncIsTold() {
    StandInPrograms programs;
    Desk desk;
    programs.hideAll();
    desk.begin(desk.source(), desk.drive());
    QVERIFY2(desk.errors.isEmpty() && desk.ends.isEmpty(), "told from the event loop");
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.errorCode(), -1);
    QCOMPARE(desk.exitCode(), -1);
    QVERIFY(desk.errorText().startsWith(u"The copying program could not be started."_s));
}

void DirCopierTest::garbageIsNoProgress() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "head -c 4000000 /dev/urandom; head -c 4000000 /dev/zero");
    Desk desk;
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    // Only the end is told.
    QCOMPARE(desk.progress.size(), 1);
}

void DirCopierTest::floodOfMessagesIsCut() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "yes 'file has vanished' | head -n 50000 >&2; exit 24");
    Desk desk;
    ErrorStream errorStream;
    QVERIFY(desk.copy());
    const QList<QByteArray> lines = errorStream.take().trimmed().split('\n');
    QCOMPARE(lines.size(), 21);
    QCOMPARE(lines.last(), "rsync: 49980 more lines of this kind");
}

void DirCopierTest::cancelledCopyLeavesNoHalfFile() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    Desk desk;
    writeFiles(desk.source(), {{"long", QByteArray(20000000, 'x')}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY_WITH_TIMEOUT(desk.progress.size() > 2, longTime);
    desk.copier.cancel();
    QCOMPARE(desk.ends.size(), 1);
    QCOMPARE(desk.exitCode(), 20);
    QCOMPARE(desk.ends.at(0).at(1).value<QProcess::ExitStatus>(), QProcess::CrashExit);
    QTRY_VERIFY(isGone(programs.log(u"rsync"_s)));
    QCOMPARE(readFiles(desk.drive()), FilesBelow());
    QVERIFY(desk.errors.isEmpty());
}

void DirCopierTest::cancelledCopyEndsOnceAndAnotherWorks() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    Desk desk;
    writeFiles(desk.source(), {{"long", QByteArray(20000000, 'x')}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY_WITH_TIMEOUT(desk.progress.size() > 2, longTime);
    desk.copier.cancel();
    desk.copier.cancel();
    QCOMPARE(desk.ends.size(), 1);
    desk.ends.clear();
    programs.put(u"rsync"_s, "exec /usr/bin/rsync \"$@\"");
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(readFiles(desk.drive() + "/reports"_L1), readFiles(desk.source()));
}

void DirCopierTest::copyEndsWithItsCopier() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    QTemporaryDir directory;
    writeFiles(directory.path(), {{"reports/long", QByteArray(20000000, 'x')}});
    QDir(directory.path()).mkpath(u"drive"_s);
    {
        DirCopier copier;
        const QSignalSpy progress(&copier, &DirCopier::setProgress);
        QStringList sources{directory.filePath(u"reports"_s)};
        copier.copyDir(sources, directory.filePath(u"drive"_s));
        QTRY_VERIFY_WITH_TIMEOUT(progress.size() > 2, longTime);
    }
    // Its helpers were told to end as well; the machine takes them away a moment later.
    QTRY_VERIFY(isGone(programs.log(u"rsync"_s)));
    QCOMPARE(readFiles(directory.filePath(u"drive"_s)), FilesBelow());
    QCOMPARE(namesIn(directory.filePath(u"drive"_s)), QStringList(u"reports"_s));
}

void DirCopierTest::secondRequestIsRefusedAndTheFirstGoesOn() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    desk.begin(desk.source(), desk.drive());
    desk.begin(u"/etc"_s, desk.drive());
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(desk.errors.size(), 1);
    QCOMPARE(desk.errorCode(), -2);
    QCOMPARE(readFiles(desk.drive()), FilesBelow({{"reports/a", "1"}}));
}

void DirCopierTest::errorHandlerMayCancel() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "exit 23");
    Desk desk;
    connect(&desk.copier, &DirCopier::rsyncErrorHappened, &desk.copier, &DirCopier::cancel);
    QVERIFY(desk.copy());
    QVERIFY(!desk.copier.isCopying());
}

void DirCopierTest::leftoversOfAPulledDriveAreRemoved() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    writeFiles(desk.drive(), {{".zrfops-incomplete/half", "2"}});
    QVERIFY(desk.copy());
    QCOMPARE(namesIn(desk.drive()), QStringList(u"reports"_s));
}

void DirCopierTest::linkInPlaceOfTheLeftoversIsNotFollowed() {
    Desk desk;
    writeFiles(desk.directory.path(), {{"home/precious/report", "1"}, {"reports/a", "2"}});
    QVERIFY(QFile::link(u"../home"_s, desk.drive() + "/.zrfops-incomplete"_L1));
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(readFiles(desk.directory.filePath(u"home"_s)), FilesBelow({{"precious/report", "1"}}));
    QCOMPARE(namesIn(desk.drive()), QStringList(u"reports"_s));
}

void DirCopierTest::cancelledCopyTakesItsLeftoversAway() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    Desk desk;
    writeFiles(desk.source(), {{"long", QByteArray(20000000, 'x')}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY_WITH_TIMEOUT(desk.progress.size() > 2, longTime);
    desk.copier.cancel();
    QTRY_COMPARE(namesIn(desk.drive()), QStringList(u"reports"_s));
}

void DirCopierTest::copyAfterACancelledOneWaitsForItsCleaning() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, slowRsync);
    Desk desk;
    writeFiles(desk.source(), {{"long", QByteArray(20000000, 'x')}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY_WITH_TIMEOUT(desk.progress.size() > 2, longTime);
    // The first one is slow.
    programs.put(u"rm"_s, "[ -e $0.log ] || { echo $$ >$0.log; sleep 0.3; }; exec /bin/rm \"$@\"");
    desk.copier.cancel();
    QTRY_VERIFY(!programs.log(u"rm"_s).isEmpty());
    desk.ends.clear();
    programs.put(u"rsync"_s, "sleep 0.6; exec /usr/bin/rsync \"$@\"");
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(readFiles(desk.drive() + "/reports"_L1), readFiles(desk.source()));
}

void DirCopierTest::fileInTheWayIsKept() {
    Desk desk;
    writeFiles(desk.directory.path(), {{"reports/a", "1"}, {"drive/reports", "of the drive"}});
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 3);
    QVERIFY(desk.errorText().contains(u"Not a directory"_s));
    QCOMPARE(readFiles(desk.drive())["reports"], "of the drive");
}

void DirCopierTest::linkInTheWayIsNotFollowed() {
    Desk desk;
    writeFiles(desk.directory.path(), {{"reports/a", "1"}, {"home/b", "2"}});
    QVERIFY(QFile::link(u"../home"_s, desk.drive() + "/reports"_L1));
    QVERIFY(desk.copy());
    QCOMPARE(desk.errorCode(), 3);
    QCOMPARE(readFiles(desk.directory.filePath(u"home"_s)), FilesBelow({{"b", "2"}}));
}

void DirCopierTest::driveBelowTheSourceIsNotCopiedIntoItself() {
    const SmallDrive outer(4096);
    if (!outer.isMounted())
        QSKIP("This user may not mount a small file system.");
    writeFiles(outer.path(), {{"a", "1"}, {"media/keep", "2"}});
    const SmallDrive drive(1024, outer.path() + "/media"_L1);
    QVERIFY(drive.isMounted());
    writeFiles(drive.path(), {{"old", "3"}});
    Desk desk;
    desk.begin(outer.path() + u'/', drive.path());
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.exitCode(), 0);
    QCOMPARE(readFiles(drive.path()), FilesBelow({{"a", "1"}, {"old", "3"}}));
}

void DirCopierTest::progressHandlerMayCancel() {
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}, {"b", "2"}});
    connect(&desk.copier, &DirCopier::setProgress, &desk.copier, &DirCopier::cancel);
    QVERIFY(desk.copy());
    QCOMPARE(desk.exitCode(), 20);
    QVERIFY(!desk.copier.isCopying());
}

void DirCopierTest::copyCancelledWhileTheDriveIsFlushedEndsAtOnce() {
    StandInPrograms programs;
    programs.put(u"sync"_s, "echo $$ >>$0.log; exec sleep 1000");
    Desk desk;
    writeFiles(desk.source(), {{"a", "1"}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY(!programs.log(u"sync"_s).isEmpty());
    QVERIFY(desk.ends.isEmpty());
    QVERIFY(desk.progress.last().at(0).toInt() > 0);
    desk.copier.cancel();
    QCOMPARE(desk.ends.size(), 1);
    QTRY_VERIFY(isGone(programs.log(u"sync"_s)));
}

void DirCopierTest::removalIsHeardBeforeTheEndOfAFailedCopy() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "exit 11");
    programs.put(u"sync"_s, "exit 1");
    Desk desk;
    // As when the news of the removal comes, a moment later.
    connect(&desk.copier, &DirCopier::rsyncErrorHappened, &desk.copier, &DirCopier::cancel,
            Qt::QueuedConnection);
    QVERIFY(desk.copy());
    QCOMPARE(desk.errors.size(), 1);
    QCOMPARE(desk.exitCode(), 20);
}

void DirCopierTest::missingSourceIsTold() {
    Desk desk;
    desk.begin(desk.directory.filePath(u"nothing"_s), desk.drive());
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.errorCode(), 23);
    QVERIFY(desk.errorText().contains(u"No such file or directory"_s));
    QCOMPARE(readFiles(desk.drive()), FilesBelow());
}

void DirCopierTest::fileThatGrowsIsCopiedWhole() {
    StandInPrograms programs;
    programs.put(u"rsync"_s, "exec /usr/bin/rsync --bwlimit=2000 \"$@\"");
    Desk desk;
    const QByteArray begun(3000000, 'x');
    writeFiles(desk.source(), {{"trace", begun}});
    desk.begin(desk.source(), desk.drive());
    QTRY_VERIFY(desk.progress.size() > 1);
    QFile trace(desk.source() + "/trace"_L1);
    QVERIFY(trace.open(QIODevice::Append));
    trace.write(QByteArray(1000, 'y'));
    trace.close();
    QVERIFY(desk.isEnded());
    QCOMPARE(desk.exitCode(), 0);
    // What it held when the copy began, at least.
    QVERIFY(readFiles(desk.drive())["reports/trace"].startsWith(begun));
}

QTEST_GUILESS_MAIN(DirCopierTest)
#include "tst_dircopier.moc"
