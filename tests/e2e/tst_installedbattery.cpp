// SPDX-License-Identifier: GPL-3.0-or-later
#include "launcherprocess.h"

#include "testconfig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <memory>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// The kernel's power state goes, turns into something else and returns under the installed launcher.
class InstalledBatteryTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { launcher.reset(); }

    void batteryIsShownAgainAfter_data();
    void batteryIsShownAgainAfter();

private:
    static QString proc() { return qEnvironmentVariable("ZR_SYSROOT") + "/proc"_L1; }
    static QString apm() { return proc() + "/apm"_L1; }
    static void write(const QByteArray &bytes) {
        QFile file(apm() + ".new"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        QVERIFY(file.rename(apm()));
    }
    bool shows(const QString &charge) { return launcher->paintedTexts(u"StatusLabel"_s).contains(charge); }

    TestConfig config;
    std::unique_ptr<LauncherProcess> launcher;
};

void InstalledBatteryTest::init() {
    config = TestConfig();
    config.setPath(u""_s);
    config.setPersistent(u"zr"_s);
    config.setCollection(u"zr"_s, u"probe"_s);
    config.addPlugin(u"probe"_s, {.file = QStringLiteral(E2E_PROBE)});
    QDir(proc()).removeRecursively();
    QVERIFY(QDir().mkpath(proc()));
    launcher = std::make_unique<LauncherProcess>();
}

void InstalledBatteryTest::batteryIsShownAgainAfter_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("shown");
    QTest::newRow("file that vanished") << u"vanished"_s << u"76%"_s;
    QTest::newRow("directory") << u"directory"_s << u"76%"_s;
    QTest::newRow("pipe that nobody writes to") << u"pipe"_s << u"76%"_s;
    QTest::newRow("device that never ends") << u"endless"_s << u"76%"_s;
    QTest::newRow("nothing in it") << u"empty"_s << u"0%"_s;
    QTest::newRow("garbage") << u"garbage"_s << u"0%"_s;
}

void InstalledBatteryTest::batteryIsShownAgainAfter() {
    QFETCH(QString, fault);
    QFETCH(QString, shown);
    QVERIFY(LauncherProcess::simulate(u"battery set 76"_s));
    QVERIFY2(launcher->start(), launcher->errors());
    QTRY_VERIFY(shows(u"76%"_s));

    QVERIFY(QFile::remove(apm()));
    if (fault == "directory"_L1)
        QVERIFY(QDir().mkpath(apm()));
    else if (fault == "pipe"_L1)
        QCOMPARE(::mkfifo(QFile::encodeName(apm()).constData(), 0600), 0);
    else if (fault == "endless"_L1)
        QVERIFY(QFile::link(u"/dev/zero"_s, apm()));
    else if (fault == "empty"_L1)
        write(QByteArray());
    else if (fault == "garbage"_L1)
        write(QByteArray(1024 * 1024, '\xff'));
    // More than the time from one poll to the next.
    const auto slowest = launcher->slowestPress({u"Настройки"_s}, 2500ms);
    qInfo("slowest press %lld ms", static_cast<long long>(slowest.count()));
    QVERIFY2(slowest < LauncherProcess::longestPress, "the screen waited");
    QTRY_VERIFY(shows(shown));

    if (fault == "directory"_L1)
        QVERIFY(QDir().rmdir(apm()));
    else if (fault != "vanished"_L1)
        QVERIFY(QFile::remove(apm()));
    QVERIFY(LauncherProcess::simulate(u"battery set 50"_s));
    QElapsedTimer clock;
    clock.start();
    QTRY_VERIFY(shows(u"50%"_s));
    qInfo("right again after %lld ms", static_cast<long long>(clock.elapsed()));
    QCOMPARE(launcher->stop(), 0);
}

QTEST_GUILESS_MAIN(InstalledBatteryTest)
#include "tst_installedbattery.moc"
