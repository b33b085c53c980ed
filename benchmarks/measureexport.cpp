// SPDX-License-Identifier: GPL-3.0-or-later
// What the export to a flash drive costs, against plain rsync and against what the drive takes at most: see
// docs/performance.md.
//
//   dbus-run-session -- measure-export [RUNS [DIRECTORY]]
//
// DIRECTORY is where the drive is thought to be, with room for 1.5 GB; the reports are made there too.
#include "flash/flashdialog.h"
#include "flash/flashspy.h"
#include "median.h"
#include "tablerow.h"
#include "testconfig.h"
#include "ui/launcherwindow.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <optional>
#include <thread>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int kilobyte = 1024;
constexpr int megabyte = 1024 * kilobyte;
constexpr int reportsPerFolder = 100;

struct Run {
    double seconds = 0;
    double longestWaitMs = 0;
};

/// Begins when it is made. Meanwhile it posts an event every two milliseconds, as input does, and keeps the longest
/// time that one had to wait.
class Stopwatch {
public:
    Stopwatch()
        : sender([this] {
              while (goesOn) {
                  QMetaObject::invokeMethod(
                      &receiver, [this, sent = Clock::now()] { take(sent); }, Qt::QueuedConnection);
                  std::this_thread::sleep_for(2ms);
              }
          }) {}
    ~Stopwatch() {
        goesOn = false;
        sender.join();
    }
    Stopwatch(const Stopwatch &) = delete;
    Stopwatch &operator=(const Stopwatch &) = delete;

    Run read() const {
        return {std::chrono::duration<double>(Clock::now() - begin).count(), longestWait.count()};
    }

private:
    using Clock = std::chrono::steady_clock;
    using Milliseconds = std::chrono::duration<double, std::milli>;

    void take(Clock::time_point sent) {
        longestWait = std::max<Milliseconds>(longestWait, Clock::now() - sent);
    }

    QObject receiver;
    const Clock::time_point begin = Clock::now();
    Milliseconds longestWait = 0ms;
    std::atomic<bool> goesOn = true;
    std::thread sender;
};

void writeFile(const QString &name, int bytes) {
    QByteArray block(qMin(bytes, megabyte), Qt::Uninitialized);
    // Not zeros: a drive may have a way of its own with them.
    std::generate(block.begin(), block.end(), [state = 1U]() mutable {
        state = state * 1664525 + 1013904223;
        return static_cast<char>(state >> 24);
    });
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(name));
    for (int written = 0; written < bytes; written += static_cast<int>(block.size()))
        file.write(block);
}

/// The reports, the drive, and the ways from one to the other.
class Desk {
public:
    Desk(const QString &place, const LauncherWindow &launcher) : directory(place), window(launcher) {}

    void makeReports(int number, int bytes) const;
    /// The drive's own limit: the same bytes in one go, past the cache.
    Run copyWithDd() const {
        return runShell(u"dd if=%1/all of=%2/all bs=1M oflag=direct status=none && sync --file-system %2"_s);
    }
    Run copyWithRsync() const {
        return runShell(u"rsync --recursive --times %1/home/reports %2/ && sync --file-system %2"_s);
    }
    /// From "Yes" to the end of the dialog.
    Run exportAsTheLauncher() const;
    /// An empty drive, and nothing else on its way to it.
    void clearDrive() const;

private:
    QString reports() const { return directory + "/home/reports"_L1; }
    QString drive() const { return directory + "/media/sda1"_L1; }
    Run runShell(const QString &command) const;

    QString directory;
    const LauncherWindow &window;
};

void Desk::makeReports(int number, int bytes) const {
    QDir(reports()).removeRecursively();
    for (int i = 0; i < number; ++i) {
        const QString folder = reports() + u"/folder %1"_s.arg(i / reportsPerFolder);
        QDir().mkpath(folder);
        writeFile(folder + u"/report %1.txt"_s.arg(i), bytes);
    }
    writeFile(directory + "/all"_L1, number * bytes);
}

Run Desk::runShell(const QString &command) const {
    QProcess shell;
    QEventLoop loop;
    QObject::connect(&shell, &QProcess::finished, &loop, &QEventLoop::quit);
    const Stopwatch stopwatch;
    shell.start(u"sh"_s, {u"-c"_s, command.arg(directory, drive())});
    loop.exec();
    if (shell.exitCode() != 0)
        qFatal("%s failed", qPrintable(command));
    return stopwatch.read();
}

Run Desk::exportAsTheLauncher() const {
    auto *const dialog = window.findChild<FlashDialog *>();
    auto *const spy = window.findChild<FlashSpy *>();
    std::optional<Stopwatch> stopwatch;
    Run run;
    const auto pressYes = [&] {
        stopwatch.emplace();
        for (QPushButton *const button : dialog->findChildren<QPushButton *>()) {
            if (button->text() == "Yes"_L1)
                button->click();
        }
    };
    QObject::connect(
        dialog, &QDialog::accepted, dialog, [&] { run = stopwatch->read(); }, Qt::SingleShotConnection);
    QTimer::singleShot(0, dialog, pressYes);
    spy->addFlash(u"sda1"_s);
    spy->removeFlash(u"sda1"_s);
    return run;
}

void Desk::clearDrive() const {
    QDir(drive()).removeRecursively();
    QDir().mkpath(drive());
    ::sync();
}

struct Way {
    Run (Desk::*copy)() const;
    QList<double> seconds = {};
    QList<double> longestWaitsMs = {};

    double worstWaitMs() const { return *std::max_element(longestWaitsMs.begin(), longestWaitsMs.end()); }
};

void measure(const Desk &desk, const QString &title, int runs) {
    Way dd{&Desk::copyWithDd};
    Way rsync{&Desk::copyWithRsync};
    Way launcher{&Desk::exportAsTheLauncher};
    for (int i = 0; i < runs; ++i) {
        for (Way *const way : {&dd, &rsync, &launcher}) {
            desk.clearDrive();
            const Run run = (desk.*way->copy)();
            way->seconds.append(run.seconds);
            way->longestWaitsMs.append(run.longestWaitMs);
        }
    }
    const double seconds = median(launcher.seconds);
    printTableRow(title + u", s (floor: plain rsync)"_s, seconds, median(rsync.seconds));
    printTableRow(title + u", s (floor: dd, as one file)"_s, seconds, median(dd.seconds));
    printTableRow(title + u", an input event waits at most, ms (floor: beside rsync)"_s,
                  median(launcher.longestWaitsMs), median(rsync.longestWaitsMs));
    printTableRow(title + u", the same in the worst run, ms (floor: beside rsync)"_s, launcher.worstWaitMs(),
                  rsync.worstWaitMs());
}

} // namespace

int main(int argc, char *argv[]) {
    const int runs = argc > 1 ? QByteArray(argv[1]).toInt() : 5;
    const QTemporaryDir place((argc > 2 ? QString::fromLocal8Bit(argv[2]) : QDir::tempPath()) +
                              "/export.XXXXXX"_L1);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", place.path().toLocal8Bit());
    qputenv("ZR_SYSROOT", place.path().toLocal8Bit());
    qputenv("HOME", place.filePath(u"home"_s).toLocal8Bit());
    const QApplication application(argc, argv);
    TestConfig config;
    config.setPersistent(u"none"_s);
    config.set(u"paths/main"_s, u"reports"_s);
    LauncherWindow window;
    window.resize(800, 480);
    window.show();
    const Desk desk(place.path(), window);

    desk.makeReports(5000, 20 * kilobyte);
    measure(desk, u"export of 5,000 files of 20 KiB"_s, runs);
    desk.makeReports(1, 500 * megabyte);
    measure(desk, u"export of one file of 500 MiB"_s, runs);
    return 0;
}
