// SPDX-License-Identifier: GPL-3.0-or-later
// What the launcher costs at rest against the floor, both running side by side, and what reading and drawing the battery
// costs:  measure-rest [SECONDS]
#include "benchmarkhome.h"
#include "median.h"
#include "power/apmreaderthread.h"
#include "power/batteryindicator.h"
#include "processuse.h"
#include "tablerow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What the battery is read for, every two seconds, and the clock, every minute.
constexpr double wakeUpsAMinute = 30 + 1;

ProcessUse useOfRunning(QProcess &process) {
    // Nothing waits for news of its end otherwise.
    process.waitForFinished(0);
    if (process.state() != QProcess::Running)
        qFatal("%s does not run: %s, %s", qPrintable(process.program()), qPrintable(process.errorString()),
               process.readAllStandardError().constData());
    return useOf(QString::number(process.processId()));
}

struct Rate {
    double wakeUps = 0;
    double processorMs = 0;
};

Rate rateOf(const ProcessUse &before, const ProcessUse &after, int seconds) {
    return {double(after.wakeUps - before.wakeUps) * 60 / seconds,
            double(after.processorNs - before.processorNs) * 60 / seconds / 1e6};
}

void printRest(const Rate &launcher, const Rate &floor) {
    printTableRow(u"wake-ups a minute at rest"_s, launcher.wakeUps, floor.wakeUps,
                  u"floor + %1"_s.arg(wakeUpsAMinute), floor.wakeUps + wakeUpsAMinute);
    printTableRow(u"processor time a minute at rest, ms"_s, launcher.processorMs, floor.processorMs);
}

void measureRest(const BenchmarkHome &home, int icons, int seconds) {
    QProcess launcher;
    QProcess floor;
    for (QProcess *const process : {&launcher, &floor})
        process->setProcessEnvironment(home.environment());
    launcher.start(QStringLiteral(LAUNCHER), {});
    floor.start(QStringLiteral(FLOOR), {QString::number(icons), home.path()});
    constexpr unsigned long settlingSeconds = 4;
    QThread::sleep(settlingSeconds);
    const ProcessUse launcherBefore = useOfRunning(launcher);
    const ProcessUse floorBefore = useOfRunning(floor);
    QThread::sleep(static_cast<unsigned long>(seconds));
    const Rate launcherRate = rateOf(launcherBefore, useOfRunning(launcher), seconds);
    if (launcherRate.wakeUps == 0)
        qFatal("The launcher does not even read the battery.");
    printRest(launcherRate, rateOf(floorBefore, useOfRunning(floor), seconds));
    for (QProcess *const process : {&launcher, &floor}) {
        process->kill();
        process->waitForFinished();
    }
}

/// In microseconds, each.
template <typename Work>
double timeOf(int repetitions, Work work) {
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repetitions; ++i)
        work(i);
    return double(timer.nsecsElapsed()) / 1e3 / repetitions;
}

/// One reading after another finds everything in the processor's caches, and one after a rest next to nothing.
void measureReading() {
    ApmReaderThread reader;
    const auto read = [&reader](int) { reader.parseApmInfo(); };
    printTableRowWithoutFloor(u"battery, one reading of an unchanged line, us"_s, timeOf(2000, read));
    QList<double> times;
    for (int i = 0; i < 10; ++i) {
        QThread::sleep(2);
        times.append(timeOf(1, read));
    }
    printTableRowWithoutFloor(u"battery, one such reading after two seconds of rest, us"_s, median(times));
}

void measureRedraw() {
    BatteryIndicator indicator;
    ApmInfo info = apmInfo(u"1.16 1.2 0x03 0x00 0x00 0x01 76% 142 min"_s);
    const double time = timeOf(2000, [&](int i) {
        info.percentage = i % 2 ? 30 : 70;
        indicator.redrawFromApmData(info);
    });
    printTableRowWithoutFloor(u"battery, a new picture, us"_s, time);
}

} // namespace

int main(int argc, char *argv[]) {
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 60;
    constexpr int icons = 4;
    const BenchmarkHome home(icons);
    const QDir place(home.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ZR_SYSROOT", place.path().toLocal8Bit());
    place.mkpath(u"proc"_s);
    QFile apm(place.filePath(u"proc/apm"_s));
    if (apm.open(QIODevice::WriteOnly))
        apm.write("1.16 1.2 0x03 0x00 0x00 0x01 76% 142 min\n");
    apm.close();
    const QApplication application(argc, argv);

    measureRest(home, icons, seconds);
    measureReading();
    measureRedraw();
    return 0;
}
