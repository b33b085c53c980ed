// SPDX-License-Identifier: GPL-3.0-or-later
// What the launcher costs at rest against the floor, both running side by side, and what reading and drawing the battery
// costs:  measure-rest [SECONDS]
#include "instrument.h"
#include "power/apmreaderthread.h"
#include "power/batteryindicator.h"
#include "tablerow.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QThread>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

struct Use {
    qint64 wakeUps = 0;
    qint64 processorNs = 0;
};

QByteArray contents(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Of all threads: each switch to one of them is a wake-up.
Use useOf(qint64 process) {
    Use use;
    const QString tasks = u"/proc/%1/task"_s.arg(process);
    for (const QString &thread : QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        for (const QByteArray &line : contents(tasks + u'/' + thread + "/status"_L1).split('\n')) {
            if (line.contains("ctxt_switches"))
                use.wakeUps += line.mid(line.indexOf(':') + 1).trimmed().toLongLong();
        }
        use.processorNs += contents(tasks + u'/' + thread + "/schedstat"_L1).split(' ').value(0).toLongLong();
    }
    return use;
}

/// What the battery is read for, every two seconds, and the clock, every minute.
constexpr double wakeUpsAMinute = 30 + 1;

struct Rate {
    double wakeUps = 0;
    double processorMs = 0;
};

Rate rateOf(const Use &before, const Use &after, int seconds) {
    return {double(after.wakeUps - before.wakeUps) * 60 / seconds,
            double(after.processorNs - before.processorNs) * 60 / seconds / 1e6};
}

void printRest(const Rate &launcher, const Rate &floor) {
    printTableRow(u"wake-ups a minute at rest"_s, launcher.wakeUps, floor.wakeUps,
                  u"floor + %1"_s.arg(wakeUpsAMinute), floor.wakeUps + wakeUpsAMinute);
    printTableRow(u"processor time a minute at rest, ms"_s, launcher.processorMs, floor.processorMs);
}

void measureRest(const Instrument &instrument, int icons, int seconds) {
    QProcess launcher;
    QProcess floor;
    for (QProcess *const process : {&launcher, &floor})
        process->setProcessEnvironment(instrument.environment());
    launcher.start(QStringLiteral(LAUNCHER), {});
    floor.start(QStringLiteral(FLOOR), {QString::number(icons), instrument.path()});
    constexpr unsigned long settlingSeconds = 4;
    QThread::sleep(settlingSeconds);
    const Use launcherBefore = useOf(launcher.processId());
    const Use floorBefore = useOf(floor.processId());
    QThread::sleep(static_cast<unsigned long>(seconds));
    printRest(rateOf(launcherBefore, useOf(launcher.processId()), seconds),
              rateOf(floorBefore, useOf(floor.processId()), seconds));
    for (QProcess *const process : {&launcher, &floor}) {
        process->kill();
        process->waitForFinished();
    }
}

template <typename Work>
void measure(const char *name, Work work) {
    constexpr int repetitions = 2000;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < repetitions; ++i)
        work(i);
    std::printf("%-40s %7.1f us\n", name, double(timer.nsecsElapsed()) / 1e3 / repetitions);
}

} // namespace

int main(int argc, char *argv[]) {
    const int seconds = argc > 1 ? QByteArray(argv[1]).toInt() : 60;
    constexpr int icons = 4;
    const Instrument instrument(icons);
    const QDir place(instrument.path());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("ZR_SYSROOT", place.path().toLocal8Bit());
    place.mkpath(u"proc"_s);
    QFile apm(place.filePath(u"proc/apm"_s));
    if (apm.open(QIODevice::WriteOnly))
        apm.write("1.16 1.2 0x03 0x00 0x00 0x01 76% 142 min\n");
    apm.close();
    const QApplication application(argc, argv);

    measureRest(instrument, icons, seconds);
    ApmReaderThread reader;
    measure("one poll, line unchanged", [&reader](int) { reader.parseApmInfo(); });
    BatteryIndicator indicator;
    ApmInfo info = apmInfo(u"1.16 1.2 0x03 0x00 0x00 0x01 76% 142 min"_s);
    measure("one redraw", [&](int i) {
        info.percentage = i % 2 ? 30 : 70;
        indicator.redrawFromApmData(info);
    });
    return 0;
}
