// SPDX-License-Identifier: GPL-3.0-or-later
#include "zrconfig.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSettings>
#include <QTest>

#include <algorithm>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString application = u"zr-launcher"_s;

QString directory() {
    return qEnvironmentVariable("XDG_CONFIG_HOME") + "/talvenor"_L1;
}

QString storeFile() {
    return directory() + "/zr-launcher.conf"_L1;
}

void write(const QString &name, const QByteArray &bytes) {
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray read(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

struct Outcome {
    bool wasKilled;
    QByteArray errors;
    /// Its flushes and changes of a name, in their order.
    QByteArrayList steps;
};

/// What another program that stores a value and is killed right after says.
Outcome storeElsewhere(const QString &value, int mostBytes = 0, int uid = 0) {
    QProcess program;
    program.start(QStringLiteral(STOREVALUE),
                  {u"paths"_s, u"main"_s, value, QString::number(mostBytes), QString::number(uid)});
    program.waitForFinished();
    return {program.exitStatus() == QProcess::CrashExit, program.readAllStandardError(),
            program.readAllStandardOutput().split('\n')};
}

} // namespace

class ZrConfigTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void absentValueReadsAsEmptyText();
    void storedValueIsSeenByQSettings();
    void valueOfQSettingsIsSeen();
    void groupHandleAndValueHandleReachTheSameValue();
    void booleansAndNumbersReadAsText_data();
    void booleansAndNumbersReadAsText();
    void blanksInAListAreKept();
    void textWithACommaStaysOneText();
    void userFallsBackOnTheSystemWideStore();
    void valueIsOnDiskWhenTheProgramIsKilledRightAfter();
    void newStoreIsFlushedBeforeItTakesItsPlace();
    void damagedFileIsKeptAsideAndTheDefaultsHold_data();
    void damagedFileIsKeptAsideAndTheDefaultsHold();
    void otherValuesSurviveAWrite();
    void twoWritesInOneMillisecondAreBothSeen();
    void valueThatIsThereAlreadyLeavesTheFileAlone();
    void absentValueIsStoredAlsoWhenItIsEmpty();
    void fullDiskIsToldAndLosesNothing();
    void readOnlyDirectoryIsToldAndLosesNothing();
    void unreadableFileIsToldAndLosesNothing();
    void linkStaysALink();
    void damagedSystemWideStoreIsTold();

private:
    static int userWithoutRights();
};

void ZrConfigTest::init() {
    QDir(directory()).removeRecursively();
}

void ZrConfigTest::absentValueReadsAsEmptyText() {
    QCOMPARE(ZrConfig(application, u"plugins"_s, u"path"_s).string(), QString());
    QVERIFY(!QFile::exists(storeFile()));
}

void ZrConfigTest::storedValueIsSeenByQSettings() {
    ZrConfig(application, u"flash"_s)[u"dir"_s] = u"/media/sda1"_s;
    QCOMPARE(QSettings(u"talvenor"_s, application).value(u"flash/dir"_s).toString(), u"/media/sda1"_s);
    QVERIFY(read(storeFile()).contains("dir=/media/sda1"));
}

void ZrConfigTest::valueOfQSettingsIsSeen() {
    QSettings settings(u"talvenor"_s, application);
    settings.setValue(u"plugins/path"_s, u"/usr/lib/zr"_s);
    QCOMPARE(ZrConfig(application, u"plugins"_s, u"path"_s).string(), u"/usr/lib/zr"_s);
}

void ZrConfigTest::groupHandleAndValueHandleReachTheSameValue() {
    ZrConfig(application, u"paths"_s, u"main"_s) = u"reports"_s;
    QCOMPARE(ZrConfig(application, u"paths"_s)[u"main"_s].string(), u"reports"_s);
}

void ZrConfigTest::booleansAndNumbersReadAsText_data() {
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::newRow("true") << QVariant(true) << u"true"_s;
    QTest::newRow("false") << QVariant(false) << u"false"_s;
    QTest::newRow("number") << QVariant(42) << u"42"_s;
    QTest::newRow("empty text") << QVariant(QString()) << QString();
    QTest::newRow("Cyrillic") << QVariant(u"отчёты"_s) << u"отчёты"_s;
    QTest::newRow("line end") << QVariant(u"a\nb"_s) << u"a\nb"_s;
}

void ZrConfigTest::booleansAndNumbersReadAsText() {
    QFETCH(QVariant, value);
    ZrConfig(application, u"flash"_s, u"save"_s) = value;
    QTEST(ZrConfig(application, u"flash"_s, u"save"_s).string(), "text");
}

void ZrConfigTest::blanksInAListAreKept() {
    ZrConfig(application, u"plugins"_s, u"zr"_s) = u" a  b "_s;
    QCOMPARE(ZrConfig(application, u"plugins"_s, u"zr"_s).string().split(u' '),
             QStringList({u""_s, u"a"_s, u""_s, u"b"_s, u""_s}));
}

void ZrConfigTest::textWithACommaStaysOneText() {
    write(storeFile(), "[paths]\nmain=a, b\n");
    QCOMPARE(ZrConfig(application, u"paths"_s, u"main"_s).string(), u"a,b"_s);
}

void ZrConfigTest::userFallsBackOnTheSystemWideStore() {
    const QString systemFile = qEnvironmentVariable("XDG_CONFIG_DIRS") + "/talvenor/zr-launcher.conf"_L1;
    write(systemFile, "[plugins]\npath=/shipped\nzr=system\n");
    ZrConfig(application, u"plugins"_s, u"path"_s) = u"/mine"_s;
    QCOMPARE(ZrConfig(application, u"plugins"_s, u"path"_s).string(), u"/mine"_s);
    QCOMPARE(ZrConfig(application, u"plugins"_s, u"zr"_s).string(), u"system"_s);
    QVERIFY(QFile::remove(systemFile));
}

void ZrConfigTest::valueIsOnDiskWhenTheProgramIsKilledRightAfter() {
    const Outcome outcome = storeElsewhere(u"reports"_s);
    QVERIFY(outcome.wasKilled);
    QCOMPARE(outcome.errors, QByteArray());
    QCOMPARE(read(storeFile()), "[paths]\nmain=reports\n"_ba);
}

void ZrConfigTest::newStoreIsFlushedBeforeItTakesItsPlace() {
    write(storeFile(), "[paths]\nmain=old\n");
    const QByteArrayList steps = storeElsewhere(u"reports"_s).steps;
    const QByteArray inPlace = ' ' + QFile::encodeName(storeFile());
    const auto change = std::ranges::find_if(steps, [&inPlace](const QByteArray &step) {
        return step.startsWith("rename ") && step.endsWith(inPlace);
    });
    QVERIFY2(change != steps.cend(), steps.join('\n'));
    const QByteArray newFile = change->chopped(inPlace.size()).mid(qstrlen("rename "));
    QVERIFY2(std::find(steps.cbegin(), change, "flush " + newFile) != change, steps.join('\n'));
    const QByteArray flushOfTheName = "flush " + QFile::encodeName(directory());
    QVERIFY2(std::find(change, steps.cend(), flushOfTheName) != steps.cend(), steps.join('\n'));
}

void ZrConfigTest::damagedFileIsKeptAsideAndTheDefaultsHold_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("binary") << QByteArray("\x7f"
                                          "ELF\0\1\2\3",
                                          8);
    QTest::newRow("cut in a quote") << "[paths]\nmain=\"repo"_ba;
    QTest::newRow("larger than a store can be") << "[paths]\nmain=reports\n;"_ba + QByteArray(2'000'000, 'x');
}

void ZrConfigTest::damagedFileIsKeptAsideAndTheDefaultsHold() {
    QFETCH(QByteArray, bytes);
    write(storeFile(), bytes);
    const Outcome outcome = storeElsewhere(u"new"_s);
    QVERIFY(outcome.wasKilled);
    QCOMPARE(outcome.errors.count('\n'), 1);
    QVERIFY2(outcome.errors.contains("is damaged") &&
                 outcome.errors.contains("zr-launcher.conf.damaged and the defaults are used"),
             outcome.errors);
    QCOMPARE(read(storeFile() + ".damaged"_L1), bytes);
    QCOMPARE(read(storeFile()), "[paths]\nmain=new\n"_ba);
}

void ZrConfigTest::otherValuesSurviveAWrite() {
    write(storeFile(), "[e1]\nlist=a, b\nver=2\n\n[General]\ntop=1\n\n[two%20words]\nbytes=@ByteArray(x)\n");
    ZrConfig(application, u"flash"_s, u"save"_s) = true;
    const QSettings settings(u"talvenor"_s, application);
    QCOMPARE(settings.value(u"e1/list"_s).toStringList(), QStringList({u"a"_s, u"b"_s}));
    QCOMPARE(settings.value(u"e1/ver"_s).toUInt(), 2U);
    QCOMPARE(settings.value(u"top"_s).toInt(), 1);
    QCOMPARE(settings.value(u"two words/bytes"_s).toByteArray(), "x"_ba);
    QCOMPARE(settings.value(u"flash/save"_s).toBool(), true);
}

void ZrConfigTest::twoWritesInOneMillisecondAreBothSeen() {
    for (int i = 100; i < 200; ++i) {
        ZrConfig(application, u"flash"_s, u"dir"_s) = i;
        QCOMPARE(ZrConfig(application, u"flash"_s, u"dir"_s).string(), QString::number(i));
    }
}

void ZrConfigTest::valueThatIsThereAlreadyLeavesTheFileAlone() {
    write(storeFile(), "# by hand\n[flash]\nsave=false\n");
    const QByteArray before = read(storeFile());
    ZrConfig(application, u"flash"_s, u"save"_s) = false;
    QCOMPARE(read(storeFile()), before);
    ZrConfig(application, u"flash"_s, u"save"_s) = true;
    QVERIFY(read(storeFile()).contains("save=true"));
}

void ZrConfigTest::absentValueIsStoredAlsoWhenItIsEmpty() {
    write(storeFile(), "[flash]\nsave=false\n");
    ZrConfig(application, u"flash"_s, u"dir"_s) = QString();
    QVERIFY(read(storeFile()).contains("dir="));
}

void ZrConfigTest::fullDiskIsToldAndLosesNothing() {
    const QByteArray before = "[paths]\nmain=reports\n";
    write(storeFile(), before);
    const Outcome outcome = storeElsewhere(QString(10'000, u'x'), 4096);
    QVERIFY(outcome.wasKilled);
    QCOMPARE(outcome.errors, "The configuration value paths/main cannot be stored in %1.\n"_ba.replace(
                                 "%1", storeFile().toLocal8Bit()));
    QCOMPARE(read(storeFile()), before);
    QCOMPARE(QDir(directory()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"zr-launcher.conf"_s});
}

void ZrConfigTest::readOnlyDirectoryIsToldAndLosesNothing() {
    const QByteArray before = "[paths]\nmain=reports\n";
    write(storeFile(), before);
    QVERIFY(QFile(directory())
                .setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther));
    const Outcome outcome = storeElsewhere(u"new"_s, 0, userWithoutRights());
    QVERIFY(QFile(directory()).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY(outcome.wasKilled);
    QVERIFY2(outcome.errors.contains("paths/main cannot be stored"), outcome.errors);
    QCOMPARE(read(storeFile()), before);
}

/// Root may read and write anywhere, so it hands over to a user who may not; the way there has to be open to that one.
int ZrConfigTest::userWithoutRights() {
    if (::geteuid() != 0)
        return 0;
    QDir way(directory());
    while (way.cdUp() && !way.isRoot() && way.path() != QDir::tempPath()) {
        const auto open = QFile::ReadOther | QFile::ExeOther;
        QFile(way.path()).setPermissions(QFile(way.path()).permissions() | open);
    }
    return 65534;
}

void ZrConfigTest::unreadableFileIsToldAndLosesNothing() {
    const QByteArray before = "[paths]\nmain=reports\n";
    write(storeFile(), before);
    const int user = userWithoutRights();
    const auto everything = QFile::Permissions(0x7777);
    QVERIFY(QFile(directory()).setPermissions(everything));
    QVERIFY(QFile(storeFile()).setPermissions({}));
    const Outcome outcome = storeElsewhere(u"new"_s, 0, user);
    QVERIFY(QFile(storeFile()).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY2(outcome.errors.contains("cannot be read; the defaults are used.\n"), outcome.errors);
    QVERIFY2(outcome.errors.contains("paths/main cannot be stored"), outcome.errors);
    QCOMPARE(read(storeFile()), before);
}

void ZrConfigTest::linkStaysALink() {
    const QString target = directory() + "/elsewhere.conf"_L1;
    write(target, "[paths]\nother=kept\n");
    QVERIFY(QFile(target).setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup |
                                         QFile::WriteGroup));
    QVERIFY(QFile::link(target, storeFile()));
    ZrConfig(application, u"paths"_s, u"main"_s) = u"reports"_s;
    QVERIFY(QFileInfo(storeFile()).isSymLink());
    QVERIFY2(read(target).contains("main=reports"), read(target));
    QVERIFY2(read(target).contains("other=kept"), read(target));
    QVERIFY(QFile(target).permissions() & QFile::WriteGroup);
}

void ZrConfigTest::damagedSystemWideStoreIsTold() {
    const QString systemFile = qEnvironmentVariable("XDG_CONFIG_DIRS") + "/talvenor/zr-launcher.conf"_L1;
    write(systemFile, QByteArray(100, '\0'));
    const Outcome outcome = storeElsewhere(u"new"_s);
    QCOMPARE(outcome.errors,
             "The configuration " + systemFile.toLocal8Bit() + " is damaged (line 1 holds a NUL).\n");
    QVERIFY(QFile::remove(systemFile));
}

QTEST_GUILESS_MAIN(ZrConfigTest)
#include "tst_zrconfig.moc"
