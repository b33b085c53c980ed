// SPDX-License-Identifier: GPL-3.0-or-later
// Start of the launcher against the floor, in turn: time from exec to the first frame, resident and proportional
// memory then. Prints rows of medians.
//
//   measure-start [RUNS]
#include "benchmarkhome.h"
#include "median.h"
#include "monotonicclock.h"
#include "tablerow.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double aimOfTime = 1.3;
constexpr double aimOfMemory = 1.25;
/// More are measured too, to see how the figures grow.
constexpr int mostWithAim = 70;

struct Sample {
    double milliseconds = 0;
    double residentMb = 0;
    double proportionalMb = 0;
};

Sample run(const QString &program, const QStringList &arguments, QProcessEnvironment environment) {
    QProcess process;
    environment.insert(u"ZR_BENCH_START_NS"_s, QString::number(monotonicNs()));
    process.setProcessEnvironment(environment);
    // Not a pipe: this process would wake up for each line, on a processor that the launcher wants.
    const QString errors = environment.value(u"XDG_CONFIG_HOME"_s) + "/errors"_L1;
    process.setStandardErrorFile(errors);
    process.start(program, arguments);
    process.waitForFinished();
    const QByteArrayList figures = process.readAllStandardOutput().trimmed().split(' ');
    if (figures.size() != 3)
        qFatal("%s told no first frame: %s", qPrintable(program), process.readAllStandardError().constData());
    return {figures[0].toDouble() / 1000, figures[1].toDouble() / 1024, figures[2].toDouble() / 1024};
}

double medianOf(const QList<Sample> &samples, double Sample::*figure) {
    QList<double> values;
    for (const Sample &sample : samples)
        values.append(sample.*figure);
    return median(values);
}

void printRow(const QString &what, const QList<Sample> &launcher, const QList<Sample> &floor,
              double Sample::*figure, double aim) {
    const double ours = medianOf(launcher, figure);
    const double least = medianOf(floor, figure);
    if (aim > 0)
        printTableRow(what, ours, least, u"%1 × floor"_s.arg(aim, 0, 'f', 2), aim * least);
    else
        printTableRow(what, ours, least);
}

} // namespace

int main(int argc, char *argv[]) {
    const int runs = argc > 1 ? QByteArray(argv[1]).toInt() : 15;
    for (const int plugins : {0, 10, 70, 200}) {
        const BenchmarkHome home(plugins);
        QList<Sample> launcher;
        QList<Sample> floor;
        for (int i = 0; i < runs; ++i) {
            launcher.append(run(QStringLiteral(LAUNCHER), {}, home.environment()));
            floor.append(
                run(QStringLiteral(FLOOR), {QString::number(plugins), home.path()}, home.environment()));
        }
        const bool hasAim = plugins <= mostWithAim;
        const QString with = u", %1 plug-ins"_s.arg(plugins);
        printRow(u"first frame, ms"_s + with, launcher, floor, &Sample::milliseconds, hasAim ? aimOfTime : 0);
        printRow(u"resident memory, MiB"_s + with, launcher, floor, &Sample::residentMb,
                 hasAim ? aimOfMemory : 0);
        printRow(u"proportional memory, MiB"_s + with, launcher, floor, &Sample::proportionalMb, 0);
    }
}
