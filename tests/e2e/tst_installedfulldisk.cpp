// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "smalldrive.h"
#include "testconfig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStorageInfo>
#include <QTest>

#include <functional>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto longestWait = 2s;

QByteArray read(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Hidden ones as well.
QStringList filesIn(const QString &directory) {
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
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
    /// Presses what is to be stored where there is no room, first until that is told, and then for a while.
    void pressInVain(const QStringList &texts, const std::function<bool()> &isTold);

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
    QCOMPARE(QStorageInfo(disk->path()).bytesFree(), 0);
}

void InstalledFullDiskTest::pressInVain(const QStringList &texts, const std::function<bool()> &isTold) {
    QElapsedTimer sincePressed;
    sincePressed.start();
    for (const QString &text : texts)
        QVERIFY(launcher->press(text));
    QVERIFY2(QTest::qWaitFor(isTold), launcher->errors());
    const qint64 told = sincePressed.elapsed();
    // Each press tries again.
    const auto slowest = launcher->slowestPress(texts, 1s);
    qInfo("told after %lld ms; slowest press %lld ms; %lld bytes free afterwards",
          static_cast<long long>(told), static_cast<long long>(slowest.count()),
          static_cast<long long>(QStorageInfo(disk->path()).bytesFree()));
    QVERIFY(std::chrono::milliseconds(told) < longestWait);
    QVERIFY(slowest < longestWait);
    QCOMPARE(QStorageInfo(disk->path()).bytesFree(), 0);
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
    pressInVain({u"5 секунд"_s}, [&] {
        return launcher->errors().contains("The configuration value system/refresh cannot be stored in " +
                                           store.toUtf8() + ".\n");
    });
    QCOMPARE(read(store), before);
    QCOMPARE(filesIn(QFileInfo(store).path()), QStringList{u"zr-launcher.conf"_s});

    QVERIFY(QFile::remove(filler()));
    QVERIFY(launcher->press(u"2 секунды"_s));
    QTRY_VERIFY2(read(store).contains("refresh=2"), read(store));
    QCOMPARE(launcher->stop(), 0);
}

void InstalledFullDiskTest::reportIsToldAndLeavesNothing() {
    launcher->environment.insert(u"HOME"_s, disk->path());
    QVERIFY2(launcher->start(), launcher->errors());
    QVERIFY(launcher->press(u"Система"_s));
    const QString reports = disk->path() + "/reports"_L1;
    QVERIFY(QDir().mkpath(reports));
    fillUp();
    pressInVain({u"labelReport"_s, u"Сохранить"_s}, [&] {
        return launcher->paintedTexts(u"MessageLine"_s).join(u' ').contains(u"не сохранён"_s);
    });
    QCOMPARE(filesIn(reports), QStringList());

    QVERIFY(QFile::remove(filler()));
    QVERIFY(launcher->press(u"labelReport"_s));
    QVERIFY(launcher->press(u"Сохранить"_s));
    QTRY_COMPARE(filesIn(reports).size(), 1);
}

QTEST_GUILESS_MAIN(InstalledFullDiskTest)
#include "tst_installedfulldisk.moc"
