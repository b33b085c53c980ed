// SPDX-License-Identifier: GPL-3.0-or-later
#include "blockdifference.h"
#include "usbdrive.h"
#include "virtualboard.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Several times what the slowest of it takes: a machine may be slow, and busy.
constexpr int longest = 180'000;
constexpr int longestInstallation = 600'000;

/// Where the page at 480 lines has what is touched.
constexpr QRect reportsIcon(459, 66, 302, 62);
constexpr QRect soundIcon(459, 136, 302, 62);
constexpr QRect troubleIcon(118, 346, 302, 62);
constexpr QPoint nothingAtAll(600, 380);
/// On the slider that the icon of the sound opens.
constexpr QPoint soundLevel(430, 94);
constexpr QRect lamps(3, 64, 71, 311);
constexpr QRect batteryPicture(8, 384, 64, 36);
/// Never the same.
constexpr QRect clockPicture(690, 0, 110, 56);
constexpr QRect datePicture(690, 30, 110, 26);
/// Load, memory and uptime of the information panel, and the network's names.
constexpr QRect informationValues(190, 266, 270, 204);
constexpr int traceCount = 120;
constexpr int traceSize = 400'000;
/// What is free for reports.
constexpr QRect freeSpace(290, 430, 90, 32);
/// The ring around the icon that has the focus, which is the one that was touched last, or around the lamps.
constexpr int ringWidth = 6;

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
    void keysOfTheConsoleDoNothing();
    void homeKeyLeavesAWindow();
    void soundLevelIsSet();
    void batteryIsThatOfTheKernel();
    void cardComesAndGoes();
    void clockThatJumpsAYearStopsNothing_data();
    void clockThatJumpsAYearStopsNothing();
    void driveTakesTheReportsAway();
    void pulledDriveHoldsWholeFilesOnly();
    void drivePulledBeforeIsFilled();
    void packagesAreInstalledAgainUnderTheLauncher();
    void crashedLauncherComesBack();
    void troublePluginIsOnThePage();
    void firstFunctionKeysReachWindowsOnTheRelease();
    void hangingLauncherComesBackWithATrace();
    void launcherThatTakesAllMemoryComesBack();
    void pluginThatCrashesAtEveryStartIsLeftOut();
    void powerKeyAsksFirst();
    void yesPowersTheBoardOff();
    void homePageIsShownAt600Lines();
    void nothingIsDrawnOverItAt600Lines();
    void removedPackagesLeaveTheTerminal();

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

    /// Without the clock, and without what else varies for the time being.
    QImage steady(QImage picture) const;
    QImage screen() const { return steady(board->picture()); }
    QString fileOf(const QString &picture) const {
        return QStringLiteral(BOARD_PICTURES "/%1-%2.png").arg(picture).arg(board->screenSize().height());
    }
    /// How the screen differs from a picture that was looked at; empty when it does not. Pictures that are missing
    /// are made first where ZR_MAKE_REFERENCES is set.
    QString differenceFrom(const QString &picture);
    bool isShownSoon(const QString &picture);
    bool isStartedAnew(const QByteArray &processBefore, int milliseconds) const;
    void comeToRest() const;
    void restartLauncher() const;
    void writeOnConsoleAndTerminal() const;
    void drawNothingOver(const QString &picture);
    void showAndHideInformation();

    std::unique_ptr<VirtualBoard> board;
    /// From the picture that was waited for last, and what was there instead.
    QString difference;
    QImage lastScreen;
    QRect varying;
    QTemporaryDir directory;
    /// Pulled in the middle, and used again.
    std::unique_ptr<UsbDrive> drive;
};

/// Unlike QTRY_VERIFY it looks at the clock: asking a board takes longer than the pause between two questions.
#define ZR_SOON(condition) QVERIFY(QTest::qWaitFor([&] { return condition; }, longest))
#define ZR_SHOWS(picture) QVERIFY2(isShownSoon(picture), qPrintable(difference))

namespace {

QImage withoutFocus(QImage picture) {
    QPainter painter(&picture);
    painter.setPen(QPen(Qt::black, 2 * ringWidth));
    for (const QRect &icon : {reportsIcon, soundIcon, troubleIcon, lamps})
        painter.drawRect(icon);
    return picture;
}

QMap<QString, QByteArray> tracesOn(const UsbDrive &drive) {
    QMap<QString, QByteArray> files = drive.contents();
    files.removeIf([](auto file) { return !file.key().startsWith("reports/traces/"_L1); });
    return files;
}

} // namespace

QImage BoardTest::steady(QImage picture) const {
    QPainter painter(&picture);
    painter.fillRect(clockPicture, Qt::black);
    painter.fillRect(varying, Qt::black);
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

QString BoardTest::differenceFrom(const QString &picture) {
    const QString file = fileOf(picture);
    if (qEnvironmentVariableIsSet("ZR_MAKE_REFERENCES") && !QFile::exists(file)) {
        comeToRest();
        screen().save(file);
    }
    lastScreen = screen();
    const QImage reference = steady(QImage(file).convertToFormat(QImage::Format_RGB32));
    const QString found = blockDifference(withoutFocus(lastScreen), withoutFocus(reference));
    return found.isEmpty() ? QString() : u"not %1: %2"_s.arg(file, found);
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
    QCOMPARE(board->run("systemctl restart zr-launcher", longest).status, 0);
}

void BoardTest::initTestCase() {
    board = newBoard(480);
    QVERIFY(board->start());
    QCOMPARE(output("uname -s"), "Linux");
}

/// What was on the screen when a test failed is kept, for whoever looks into it.
void BoardTest::cleanup() {
    varying = QRect();
    if (!QTest::currentTestFailed())
        return;
    const QString kept =
        QStringLiteral(BOARD_IMAGE "/../failed-%1.png").arg(QLatin1String(QTest::currentTestFunction()));
    if (lastScreen.save(kept))
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

void BoardTest::writeOnConsoleAndTerminal() const {
    // The kernel's console is tty0, and says what is urgent whatever "quiet" is.
    QVERIFY(output("cat /proc/cmdline").contains("console=tty0"));
    for (int i = 0; i < 20; ++i)
        QCOMPARE(board->run("echo '<0>the kernel has something urgent to say' >/dev/kmsg").status, 0);
    QCOMPARE(board->run("for i in 1 2 3 4 5 6; do echo a terminal has more to say; done >/dev/tty1").status,
             0);
}

void BoardTest::drawNothingOver(const QString &picture) {
    constexpr int looks = 8;
    writeOnConsoleAndTerminal();
    for (int look = 0; look < looks; ++look) {
        const QString found = differenceFrom(picture);
        QVERIFY2(found.isEmpty(), qPrintable(found));
    }
}

void BoardTest::consoleAndTerminalDrawNothingOverIt() {
    // There would be a login prompt, if the launcher did not take its place.
    QCOMPARE(output("systemctl is-enabled getty@tty1"), "enabled");
    QCOMPARE(output("systemctl is-active getty@tty1"), "inactive");
    drawNothingOver(u"home"_s);
}

void BoardTest::touchLeavesNoPointer() {
    board->pressKey(u"f4"_s);
    ZR_SOON(!differenceFrom(u"home"_s).isEmpty());
    // It has been handled when the panel is gone.
    board->touch(nothingAtAll);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::showAndHideInformation() {
    board->pressKey(u"f4"_s);
    varying = informationValues;
    ZR_SHOWS(u"information"_s);
    varying = QRect();
    board->pressKey(u"f4"_s);
    ZR_SHOWS(u"home"_s);
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

    showAndHideInformation();
}

/// With them the kernel changes terminals, on which systemd then starts a login prompt, and systemd restarts the machine.
void BoardTest::keysOfTheConsoleDoNothing() {
    const QByteArray before = output("cat /proc/sys/kernel/random/boot_id");
    for (const QStringList &keys : {QStringList{u"alt"_s, u"f2"_s},
                                    {u"ctrl"_s, u"alt"_s, u"f3"_s},
                                    {u"ctrl"_s, u"alt"_s, u"delete"_s}}) {
        board->pressTogether(keys);
        // They have been handled when the panel is there.
        showAndHideInformation();
    }
    QCOMPARE(output("cat /sys/class/tty/tty0/active"), "tty1");
    QCOMPARE(output("systemctl is-active getty@tty1 getty@tty2 getty@tty3"), "inactive\ninactive\ninactive");
    QCOMPARE(output("systemctl is-system-running"), "running");
    QCOMPARE(output("cat /proc/sys/kernel/random/boot_id"), before);
}

void BoardTest::homeKeyLeavesAWindow() {
    board->touch(reportsIcon.center());
    varying = freeSpace;
    ZR_SHOWS(u"reports"_s);
    varying = QRect();
    board->pressKey(u"home"_s);
    ZR_SHOWS(u"home"_s);
}

void BoardTest::soundLevelIsSet() {
    const QByteArray level = output("amixer sget Master");
    QVERIFY2(level.contains("Playback"), level);
    board->touch(soundIcon.center());
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

void BoardTest::clockThatJumpsAYearStopsNothing_data() {
    QTest::addColumn<int>("seconds");
    constexpr int year = 365 * 24 * 3600;
    QTest::newRow("forward") << year;
    QTest::newRow("back") << -year;
}

/// The kernel's own clock: all programs on the board see it.
void BoardTest::clockThatJumpsAYearStopsNothing() {
    QFETCH(int, seconds);
    const QByteArray before = launcherProcess();
    const auto date = [this] { return board->picture().copy(datePicture); };
    const auto signOfLife = [this] {
        return output("systemctl show -P WatchdogTimestampMonotonic zr-launcher");
    };
    const QImage dateBefore = date();
    QCOMPARE(board->run("date -s @$(($(date +%s) + " + QByteArray::number(seconds) + "))").status, 0);
    ZR_SOON(date() != dateBefore);
    const QByteArray lastSign = signOfLife();
    ZR_SOON(signOfLife() != lastSign);
    cardComesAndGoes();
    QCOMPARE(launcherProcess(), before);
}

void BoardTest::driveTakesTheReportsAway() {
    asInstrument("sh -c 'mkdir -p ~/reports/traces; echo one >~/reports/one.txt; "
                 "for i in 1 2 3 4 5; do head -c 300000 /dev/zero >~/reports/traces/$i; done'");
    const UsbDrive drive(directory.filePath(u"drive"_s), 64);
    board->plugDrive(drive.file());
    ZR_SHOWS(u"question"_s);
    board->pressKey(u"ret"_s);
    ZR_SHOWS(u"home"_s);
    QVERIFY(board->pullDrive());
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
    asInstrument("sh -c 'mkdir -p ~/reports/traces; for i in $(seq 1 " + QByteArray::number(traceCount) +
                 "); do head -c " + QByteArray::number(traceSize) +
                 " /dev/zero | tr \"\\000\" x >~/reports/traces/$i; done'");
    drive = std::make_unique<UsbDrive>(directory.filePath(u"drive"_s), 64);
    board->plugDrive(drive->file());
    ZR_SHOWS(u"question"_s);
    board->pressKey(u"ret"_s);
    // Looked at from outside: what the kernel still keeps to itself is lost.
    ZR_SOON(tracesOn(*drive).size() > 5);
    QVERIFY(board->pullDrive());
    ZR_SHOWS(u"pulled"_s);
    board->pressKey(u"ret"_s);
    ZR_SHOWS(u"home"_s);
    ZR_SOON(output("ls /media").isEmpty());

    // FAT has a new name written before the place of the data is: at most one, which was being given its name, has none yet.
    QMap<QString, QByteArray> traces = tracesOn(*drive);
    QVERIFY2(traces.size() > 5 && traces.size() < traceCount, QByteArray::number(traces.size()));
    QVERIFY(traces.removeIf([](auto trace) { return trace.value().isEmpty(); }) <= 1);
    for (const QByteArray &trace : traces)
        QCOMPARE(trace, QByteArray(traceSize, 'x'));
}

void BoardTest::drivePulledBeforeIsFilled() {
    QVERIFY2(drive, "it comes after pulledDriveHoldsWholeFilesOnly");
    board->plugDrive(drive->file());
    ZR_SHOWS(u"question"_s);
    board->pressKey(u"ret"_s);
    ZR_SHOWS(u"home"_s);
    QVERIFY(board->pullDrive());
    ZR_SOON(output("ls /media").isEmpty());
    const QMap<QString, QByteArray> traces = tracesOn(*drive);
    QCOMPARE(traces.size(), traceCount);
    for (const QByteArray &trace : traces)
        QCOMPARE(trace, QByteArray(traceSize, 'x'));
    asInstrument("sh -c 'rm -r ~/reports'");
}

/// As in an upgrade, while somebody uses the instrument.
void BoardTest::packagesAreInstalledAgainUnderTheLauncher() {
    const QByteArray before = launcherProcess();
    const GuestShell::Result installed =
        board->run("dpkg --install /var/cache/zr-packages/*.deb", longestInstallation);
    QVERIFY2(installed.status == 0, installed.output);
    QVERIFY(isStartedAnew(before, longest));
    ZR_SHOWS(u"home"_s);
    everyUnitIsWell();
}

void BoardTest::crashedLauncherComesBack() {
    const QByteArray before = launcherProcess();
    QCOMPARE(board->run("kill -SEGV " + before).status, 0);
    QVERIFY(isStartedAnew(before, longest));
    ZR_SHOWS(u"home"_s);
    QVERIFY(journal().contains("[bt]"));
    drawNothingOver(u"home"_s);
}

void BoardTest::troublePluginIsOnThePage() {
    QCOMPARE(board
                 ->run("install -d -o zr -g zr /var/lib/zr/.config/talvenor && "
                       "printf '%s\\n' '[plugins]' 'zr=system network reports sound night trouble refresh' "
                       "'[trouble]' ver=2 row=5 col=1 name=libtrouble.so "
                       ">/var/lib/zr/.config/talvenor/zr-launcher.conf")
                 .status,
             0);
    restartLauncher();
    ZR_SHOWS(u"trouble"_s);
}

void BoardTest::firstFunctionKeysReachWindowsOnTheRelease() {
    for (const QString &key : {u"f1"_s, u"f2"_s, u"a"_s})
        board->pressKey(key);
    ZR_SOON(output("cat /run/zr-session/keys").endsWith("A released"));
    QCOMPARE(output("cat /run/zr-session/keys"), "F1 released\nF2 released\nA pressed\nA released");
    ZR_SHOWS(u"trouble"_s);
}

void BoardTest::hangingLauncherComesBackWithATrace() {
    const QByteArray before = launcherProcess();
    board->touch(troubleIcon.center());
    QVERIFY(isStartedAnew(before, longest));
    ZR_SHOWS(u"trouble"_s);
    QVERIFY(journal().contains("TroublePlugin::hang()"));
    drawNothingOver(u"trouble"_s);
}

void BoardTest::launcherThatTakesAllMemoryComesBack() {
    const QByteArray launcher = launcherProcess();
    QCOMPARE(board->run("touch /run/zr-session/eat").status, 0);
    QElapsedTimer time;
    time.start();
    board->touch(troubleIcon.center());
    QVERIFY(isStartedAnew(launcher, longest));
    ZR_SHOWS(u"trouble"_s);
    qInfo("After %.1f s the page is back", double(time.elapsed()) / 1000);
    QVERIFY(time.elapsed() < 150'000);

    // It was the launcher's own limit, three quarters of all there is, and nobody else suffered.
    QVERIFY(output("dmesg").contains("Memory cgroup out of memory: Killed process " + launcher));
    QCOMPARE(output("dmesg | grep -c 'Killed process'"), "1");
    QVERIFY(journal().contains("code=exited, status=137"));
    drawNothingOver(u"trouble"_s);
    QCOMPARE(board->run("rm /run/zr-session/eat").status, 0);
}

void BoardTest::pluginThatCrashesAtEveryStartIsLeftOut() {
    const qsizetype before = journal().count("TroublePlugin::crash()");
    // Crashes of before do not count, and the first start is to fail.
    QCOMPARE(board
                 ->run("systemctl stop zr-launcher && rm -f /run/zr-session/zr-launcher/crashes.json && "
                       "touch /run/zr-session/crash && systemctl start --no-block zr-launcher",
                       longest)
                 .status,
             0);
    ZR_SOON(output("systemctl is-active zr-launcher") == "active");
    ZR_SHOWS(u"leftout"_s);
    QCOMPARE(journal().count("TroublePlugin::crash()") - before, 3);
    QVERIFY(output("cat /run/zr-session/zr-launcher/crashes.json").contains("libtrouble.so"));
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

void BoardTest::nothingIsDrawnOverItAt600Lines() {
    consoleAndTerminalDrawNothingOverIt();
    touchLeavesNoPointer();
    ZR_SHOWS(u"home"_s);
}

void BoardTest::removedPackagesLeaveTheTerminal() {
    const GuestShell::Result removed = board->run(
        "dpkg --remove zr-launcher zr-launcher-plugins zr-launcher-simulator", longestInstallation);
    QVERIFY2(removed.status == 0, removed.output);
    QCOMPARE(output("systemctl is-active zr-launcher zr-session-bus zr-flash-service"),
             "inactive\ninactive\ninactive");
    QCOMPARE(launcherProcess(), "");
    QCOMPARE(output("systemctl start getty@tty1; systemctl is-active getty@tty1"), "active");
    ZR_SOON(!differenceFrom(u"home"_s).isEmpty());
}

QTEST_GUILESS_MAIN(BoardTest)
#include "tst_board.moc"
