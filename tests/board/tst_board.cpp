// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedifference.h"
#include "usbdrive.h"
#include "virtualboard.h"

#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A crash at the start is found at the third time, after pauses of one and two seconds.
constexpr int longest = 90'000;
/// The watchdog's time and the trace's, a stop and a start.
constexpr int longestHang = 120'000;

/// Where the home page at 480 lines has what is touched.
constexpr QPoint reportsIcon(609, 97);
constexpr QPoint soundIcon(609, 167);
/// On the slider that the icon of the sound opens.
constexpr QPoint soundLevel(430, 94);
constexpr QPoint troubleIcon(268, 375);
constexpr QPoint nothingAtAll(400, 350);
/// The frame around the icon that was touched last, and where it was before.
constexpr qint64 focusDifference = 800'000;
constexpr QRect batteryPicture(8, 384, 64, 36);

} // namespace

/// The packages on a board: what a technician sees and does, and what becomes of an instrument in trouble. The functions
/// follow one another on one board; each leaves the home page as it found it.
class BoardTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void homePageIsShownAtBoot();
    void everyUnitIsWell();
    void consoleAndTerminalDrawNothingOverIt();
    void touchLeavesNoPointer();
    void functionKeysDoTheirs();
    void homeKeyLeavesAWindow();
    void soundLevelIsSet();
    void batteryIsThatOfTheKernel();
    void cardComesAndGoes();
    void driveTakesTheReportsAway();
    void pulledDriveHoldsWholeFilesOnly();
    void crashedLauncherComesBack();
    void hangingLauncherComesBackWithATrace();
    void pluginThatCrashesAtEveryStartIsLeftOut();
    void powerKeyAsksFirst();
    void yesPowersTheBoardOff();
    void homePageIsShownAt600Lines();

private:
    static std::unique_ptr<VirtualBoard> newBoard(int lines) {
        return std::make_unique<VirtualBoard>(QStringLiteral(BOARD_ARCHITECTURE), QStringLiteral(BOARD_IMAGE),
                                              QSize(800, lines));
    }
    QByteArray output(const QByteArray &command) const { return board->run(command).output.trimmed(); }
    /// On the instrument's bus, as the instrument's user.
    QByteArray asInstrument(const QByteArray &command) const {
        return output("runuser -u zr -- env XDG_RUNTIME_DIR=/run/zr-session HOME=/var/lib/zr "
                      "DBUS_SESSION_BUS_ADDRESS=unix:path=/run/zr-session/bus " +
                      command);
    }
    QByteArray launcherProcess() const { return output("pgrep -x zr-launcher"); }
    QByteArray journal() const { return output("journalctl -b --no-pager -o cat -u zr-launcher"); }

    /// The screen without its clock, which is never the same.
    QImage screen() const;
    QString fileOf(const QString &picture) const {
        return QStringLiteral(BOARD_PICTURES "/%1-%2.png").arg(picture).arg(board->screenSize().height());
    }
    /// How the screen differs from a picture that was looked at; empty when it does not. Pictures that are missing
    /// are made first where ZR_MAKE_REFERENCES is set.
    QString differenceFrom(const QString &picture) const;
    bool isShownSoon(const QString &picture);
    bool isStartedAnew(const QByteArray &processBefore, int milliseconds) const;
    void comeToRest() const;
    void restartLauncher() const;

    std::unique_ptr<VirtualBoard> board;
    /// From the picture that was waited for last.
    QString difference;
    QTemporaryDir directory;
};

/// Unlike QTRY_VERIFY it looks at the clock: asking a board takes longer than the pause between two questions.
#define ZR_SOON(condition) QVERIFY(QTest::qWaitFor([&] { return condition; }, longest))
#define ZR_SHOWS(picture) QVERIFY2(isShownSoon(picture), qPrintable(difference))

QImage BoardTest::screen() const {
    QImage picture = board->picture();
    QPainter(&picture).fillRect(690, 0, 110, 56, Qt::black);
    return picture;
}

void BoardTest::comeToRest() const {
    constexpr int restMs = 20'000;
    QImage before;
    do {
        before = screen();
        QTest::qWait(restMs);
    } while (screen() != before);
}

QString BoardTest::differenceFrom(const QString &picture) const {
    const QString file = fileOf(picture);
    if (qEnvironmentVariableIsSet("ZR_MAKE_REFERENCES") && !QFile::exists(file)) {
        comeToRest();
        screen().save(file);
    }
    const QImage now = screen();
    const QImage reference = QImage(file).convertToFormat(QImage::Format_RGB32);
    if (reference.size() != now.size())
        return u"no picture %1 of that size"_s.arg(file);
    const qint64 sum = differenceBetween(now, reference);
    const qint64 tolerated = focusDifference + toleratedDifference(now.size());
    return sum < tolerated ? QString() : u"%1 from %2, tolerated is %3"_s.arg(sum).arg(file).arg(tolerated);
}

bool BoardTest::isShownSoon(const QString &picture) {
    return QTest::qWaitFor(
        [&] {
            difference = differenceFrom(picture);
            return difference.isEmpty();
        },
        longest);
}

bool BoardTest::isStartedAnew(const QByteArray &processBefore, int milliseconds) const {
    return QTest::qWaitFor(
        [&] {
            const QByteArray now = launcherProcess();
            return !now.isEmpty() && now != processBefore;
        },
        milliseconds);
}

void BoardTest::restartLauncher() const {
    QCOMPARE(board->run("systemctl restart zr-launcher", longestHang).status, 0);
}

void BoardTest::initTestCase() {
    board = newBoard(480);
    QVERIFY(board->start());
    QCOMPARE(output("uname -s"), "Linux");
}

/// What was on the screen when a test failed is kept, for whoever looks into it.
void BoardTest::cleanup() {
    if (!QTest::currentTestFailed())
        return;
    const QString kept =
        QStringLiteral(BOARD_IMAGE "/../failed-%1.png").arg(QLatin1String(QTest::currentTestFunction()));
    QFile::remove(kept);
    if (QFile::copy(directory.filePath(u"now.png"_s), kept))
        qWarning("The screen is in %s", qPrintable(kept));
    qWarning("%s", output("SYSTEMD_COLORS=0 journalctl -b --no-pager -o cat -n 60").constData());
}

void BoardTest::homePageIsShownAtBoot() {
    ZR_SHOWS(u"home"_s);
}

void BoardTest::everyUnitIsWell() {
    QCOMPARE(board->run("systemctl is-system-running --wait", longest).output.trimmed(), "running");
    QCOMPARE(output("systemctl is-active zr-launcher zr-session-bus zr-flash-service"),
             "active\nactive\nactive");
    QCOMPARE(output("ps -o user= -C zr-launcher"), "zr");
}

void BoardTest::consoleAndTerminalDrawNothingOverIt() {
    QCOMPARE(output("systemctl is-active getty@tty1"), "inactive");
    // The kernel's console is tty0, and says what is urgent whatever "quiet" is.
    QVERIFY(output("cat /proc/cmdline").contains("console=tty0"));
    for (int i = 0; i < 20; ++i)
        QCOMPARE(board->run("echo '<0>the kernel has something urgent to say' >/dev/kmsg").status, 0);
    QCOMPARE(board->run("for i in 1 2 3 4 5 6; do echo a terminal has more to say; done >/dev/tty1").status,
             0);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::touchLeavesNoPointer() {
    const QRect around(nothingAtAll - QPoint(40, 40), QSize(80, 80));
    const QImage before = screen().copy(around);
    board->touch(nothingAtAll);
    // The touch is handled before what is pressed after it.
    board->pressKey(u"f4"_s);
    ZR_SOON(screen().copy(around) != before);
    board->pressKey(u"f4"_s);
    ZR_SOON(screen().copy(around) == before);
}

void BoardTest::functionKeysDoTheirs() {
    constexpr char brightness[] = "cat /sys/devices/platform/pmmcu.0/brightness";
    QCOMPARE(output("echo 100 >/sys/devices/platform/pmmcu.0/brightness; "_ba + brightness), "100");
    board->pressKey(u"f3"_s);
    ZR_SOON(output(brightness) == "255");
    board->pressKey(u"f3"_s);
    ZR_SOON(output(brightness) == "1");
    board->pressKey(u"f3"_s);
    ZR_SOON(output(brightness) == "255");

    const QImage before = screen();
    board->pressKey(u"f1"_s);
    board->pressKey(u"f2"_s);
    board->pressKey(u"f4"_s);
    ZR_SOON(screen() != before);
    board->pressKey(u"f4"_s);
    ZR_SOON(screen() == before);
}

void BoardTest::homeKeyLeavesAWindow() {
    board->touch(reportsIcon);
    ZR_SHOWS(u"reports"_s);
    board->pressKey(u"home"_s);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::soundLevelIsSet() {
    const QByteArray level = output("amixer sget Master");
    QVERIFY2(level.contains("Playback"), level);
    board->touch(soundIcon);
    ZR_SHOWS(u"sound"_s);
    board->touch(soundLevel);
    ZR_SOON(output("amixer sget Master") != level);
    board->touch(nothingAtAll);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::batteryIsThatOfTheKernel() {
    const QImage before = screen().copy(batteryPicture);
    QCOMPARE(board->run("echo 12 >/sys/module/zr_board/parameters/charge").status, 0);
    ZR_SOON(screen().copy(batteryPicture) != before);
    QCOMPARE(board->run("echo 83 >/sys/module/zr_board/parameters/charge").status, 0);
    ZR_SOON(screen().copy(batteryPicture) == before);
}

void BoardTest::cardComesAndGoes() {
    asInstrument("zr-simulator card insert e1 1234");
    ZR_SHOWS(u"card"_s);
    asInstrument("zr-simulator card remove e1-1234");
    ZR_SHOWS(u"home"_s);
}

void BoardTest::driveTakesTheReportsAway() {
    asInstrument("sh -c 'mkdir -p ~/reports/traces; echo one >~/reports/one.txt; "
                 "for i in 1 2 3 4 5; do head -c 300000 /dev/zero >~/reports/traces/$i; done'");
    const UsbDrive drive(directory.filePath(u"drive"_s), 64);
    board->plugDrive(drive.file());
    ZR_SHOWS(u"question"_s);
    board->pressKey(u"ret"_s);
    ZR_SHOWS(u"home"_s);
    board->pullDrive();
    ZR_SOON(output("ls /media").isEmpty());

    QMap<QString, QByteArray> wanted{{u"reports/one.txt"_s, "one\n"}};
    for (int i = 1; i <= 5; ++i)
        wanted.insert(u"reports/traces/%1"_s.arg(i), QByteArray(300'000, '\0'));
    const QMap<QString, QByteArray> files = drive.contents();
    QCOMPARE(files.keys(), wanted.keys());
    QVERIFY(files == wanted);
    QCOMPARE(drive.defects(), QByteArray());
}

void BoardTest::pulledDriveHoldsWholeFilesOnly() {
    constexpr int fileSize = 400'000;
    asInstrument("sh -c 'mkdir -p ~/reports/traces; for i in $(seq 1 60); do head -c " +
                 QByteArray::number(fileSize) + " /dev/zero | tr \"\\000\" x >~/reports/traces/$i; done'");
    const UsbDrive drive(directory.filePath(u"drive"_s), 64);
    board->plugDrive(drive.file());
    ZR_SHOWS(u"question"_s);
    board->pressKey(u"ret"_s);
    ZR_SOON(output("ls /media/*/reports/traces | wc -l").toInt() > 5);
    // What the kernel has written out by itself when the drive is pulled is a matter of luck; this much is certain.
    output("sync -f /media/*");
    board->pullDrive();
    ZR_SHOWS(u"pulled"_s);
    board->pressKey(u"ret"_s);
    ZR_SHOWS(u"home"_s);

    int whole = 0;
    const QMap<QString, QByteArray> files = drive.contents();
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (!file.key().startsWith("reports/traces/"_L1))
            continue;
        QCOMPARE(file.value(), QByteArray(fileSize, 'x'));
        ++whole;
    }
    QVERIFY2(whole > 5 && whole < 60, QByteArray::number(whole));
    asInstrument("sh -c 'rm -r ~/reports'");
}

void BoardTest::crashedLauncherComesBack() {
    const QByteArray before = launcherProcess();
    QCOMPARE(board->run("kill -SEGV " + before).status, 0);
    QVERIFY(isStartedAnew(before, longest));
    ZR_SHOWS(u"home"_s);
    QVERIFY(journal().contains("[bt]"));
}

void BoardTest::hangingLauncherComesBackWithATrace() {
    QCOMPARE(board
                 ->run("install -d -o zr -g zr /var/lib/zr/.config/talvenor && "
                       "printf '%s\\n' '[plugins]' 'zr=system network reports sound night trouble refresh' "
                       "'[trouble]' ver=2 row=5 col=1 name=libtrouble.so "
                       ">/var/lib/zr/.config/talvenor/zr-launcher.conf")
                 .status,
             0);
    restartLauncher();
    ZR_SHOWS(u"trouble"_s);
    const QByteArray before = launcherProcess();
    board->touch(troubleIcon);
    QVERIFY(isStartedAnew(before, longestHang));
    ZR_SHOWS(u"trouble"_s);
    QVERIFY(journal().contains("TroublePlugin::hang()"));
}

void BoardTest::pluginThatCrashesAtEveryStartIsLeftOut() {
    // Crashes of before do not count, and the first start is to fail.
    output("systemctl stop zr-launcher; rm -f /run/zr-session/zr-launcher/crashes.json; "
           "touch /run/zr-session/crash; systemctl start --no-block zr-launcher");
    ZR_SOON(output("systemctl is-active zr-launcher") == "active");
    ZR_SHOWS(u"leftout"_s);
    QCOMPARE(board->run("rm /run/zr-session/crash /var/lib/zr/.config/talvenor/zr-launcher.conf").status, 0);
    restartLauncher();
    ZR_SHOWS(u"home"_s);
}

void BoardTest::powerKeyAsksFirst() {
    board->pressKey(u"pause"_s);
    ZR_SHOWS(u"poweroff"_s);
    board->pressKey(u"esc"_s);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::yesPowersTheBoardOff() {
    board->pressKey(u"pause"_s);
    ZR_SHOWS(u"poweroff"_s);
    board->pressKey(u"ret"_s);
    QVERIFY(board->waitForPowerOff());
}

void BoardTest::homePageIsShownAt600Lines() {
    board = newBoard(600);
    QVERIFY(board->start());
    ZR_SHOWS(u"home"_s);
}

QTEST_GUILESS_MAIN(BoardTest)
#include "tst_board.moc"
