// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "smalldrive.h"
#include "testconfig.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray read(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The installed launcher with its store and its reports on a disk that has no room left.
class InstalledFullDiskTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void settingIsToldAndTheStoreStays();
    void reportIsToldAndLeavesNothing();

private:
    QString filler() const { return disk->path() + "/filler"_L1; }
    void fillUp() const;

    TestConfig config;
    std::unique_ptr<SmallDrive> disk;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledFullDiskTest::init() {
    const QString plugins = QStringLiteral(E2E_TREE "/" E2E_LIBRARY_DIR "/zr-launcher/plugins/");
    config = TestConfig();
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    config.setCollection(u"zr"_s, u"probe system refresh"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    config.addPlugin(u"system"_s, {.row = 4, .file = plugins + "libsystem.so"_L1, .settings = u"refresh"_s});
    config.addPlugin(u"refresh"_s, {.file = plugins + "librefresh.so"_L1});
    disk = std::make_unique<SmallDrive>(256);
    launcher = std::make_unique<LauncherProcess>();
    if (!disk->isMounted())
        QSKIP("This user may not mount a small file system.");
}

void InstalledFullDiskTest::cleanup() {
    launcher.reset();
    disk.reset();
}

void InstalledFullDiskTest::fillUp() const {
    QFile file(filler());
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    while (file.write(QByteArray(4096, 'x')) > 0) {
    }
    QVERIFY(file.size() > 0);
}

void InstalledFullDiskTest::settingIsToldAndTheStoreStays() {
    const QString store = disk->path() + "/talvenor/zr-launcher.conf"_L1;
    QVERIFY(QDir(disk->path()).mkdir(u"talvenor"_s));
    QVERIFY(QFile::copy(qEnvironmentVariable("XDG_CONFIG_HOME") + "/talvenor/zr-launcher.conf"_L1, store));
    launcher->environment.insert(u"XDG_CONFIG_HOME"_s, disk->path());
    QVERIFY2(launcher->start(), launcher->errors());
    QVERIFY(launcher->press(u"Система"_s));
    QVERIFY(launcher->press(u"labelSettings"_s));
    const QByteArray before = read(store);
    fillUp();
    QVERIFY(launcher->press(u"5 секунд"_s));
    QTRY_VERIFY2(launcher->errors().contains("The configuration value system/refresh cannot be stored in " +
                                             store.toUtf8() + ".\n"),
                 launcher->errors());
    QCOMPARE(read(store), before);
    QCOMPARE(QDir(QFileInfo(store).path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
             QStringList{u"zr-launcher.conf"_s});

    QVERIFY(QFile::remove(filler()));
    QVERIFY(launcher->press(u"2 секунды"_s));
    QTRY_VERIFY2(read(store).contains("refresh=2"), read(store));
    QCOMPARE(launcher->stop(), 0);
}

void InstalledFullDiskTest::reportIsToldAndLeavesNothing() {
    launcher->environment.insert(u"HOME"_s, disk->path());
    QVERIFY2(launcher->start(), launcher->errors());
    QVERIFY(launcher->press(u"Система"_s));
    const QDir reports(disk->path() + "/reports"_L1);
    QVERIFY(QDir().mkpath(reports.path()));
    fillUp();
    QVERIFY(launcher->press(u"labelReport"_s));
    QVERIFY(launcher->press(u"Сохранить"_s));
    QTRY_VERIFY(launcher->paintedTexts(u"MessageLine"_s).join(u' ').contains(u"не сохранён"_s));
    QCOMPARE(reports.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
    QVERIFY(QFile::remove(filler()));
    QVERIFY(launcher->press(u"labelReport"_s));
    QVERIFY(launcher->press(u"Сохранить"_s));
    QTRY_COMPARE(reports.entryList(QDir::Files).size(), 1);
}

QTEST_GUILESS_MAIN(InstalledFullDiskTest)
#include "tst_installedfulldisk.moc"
