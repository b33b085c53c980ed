// SPDX-License-Identifier: GPL-3.0-or-later
// Counts by valgrind's tool callgrind how many instructions each phase takes: see docs/performance.md.
//
//   count-instructions             one figure a line, with what they depend on besides, as in instructions.baseline
//   count-instructions --rows      rows of launcher and floor
#include "benchmarkhome.h"
#include "tablerow.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTextStream>

#include <algorithm>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int patienceMs = 120'000;
// What happens once in a while, as when memory is tidied up, is to be spread.
constexpr int switches = 50;
constexpr int lampChanges = 1000;

QByteArray outputOf(const QString &program, const QStringList &arguments,
                    const QProcessEnvironment &environment, QProcess::ProcessChannel channel) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    if (!process.waitForFinished(patienceMs) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        qFatal("%s failed: %s", qPrintable(program), process.readAllStandardError().constData());
    process.setReadChannel(channel);
    return process.readAll();
}

/// Of all threads, as callgrind counts with the options.
qint64 instructionsOf(const QStringList &options, const QStringList &program,
                      const QProcessEnvironment &environment) {
    // The first run stores what each start stores and fills the cache of fonts.
    outputOf(program.first(), program.mid(1), environment, QProcess::StandardOutput);
    // Addresses that change from run to run would change the order of some hashes.
    const QStringList callgrind{u"-R"_s, u"valgrind"_s, u"--tool=callgrind"_s,
                                "--callgrind-out-file=%1/callgrind.out"_L1.arg(environment.value(u"HOME"_s))};
    const QByteArray told =
        outputOf(u"setarch"_s, callgrind + options + program, environment, QProcess::StandardError);
    static const QRegularExpression collected(u"Collected : ([0-9]+)"_s);
    const QRegularExpressionMatch match = collected.match(QString::fromLocal8Bit(told));
    if (!match.hasMatch())
        qFatal("callgrind tells no count: %s", told.constData());
    return match.captured(1).toLongLong();
}

struct Count {
    qint64 launcher = 0;
    qint64 floor = 0;
};

Count countStart(int plugins) {
    const BenchmarkHome home(plugins);
    QProcessEnvironment environment = home.fixedEnvironment();
    environment.insert(u"ZR_BENCH_START_NS"_s, u"0"_s);
    // All but what fontconfig reads before its first answer: its parser's hashes begin with a random number.
    const QStringList options{u"--toggle-collect=FcInit"_s, u"--collect-atstart=yes"_s};
    return {
        instructionsOf(options, {QStringLiteral(LAUNCHER)}, environment),
        instructionsOf(options, {QStringLiteral(FLOOR), QString::number(plugins), home.path()}, environment)};
}

/// Of one repetition: the median of three processes, since what memory looks like when the repetitions begin makes them
/// all a little dearer or cheaper.
qint64 countRepetition(const QString &work, int repetitions) {
    QList<qint64> counts;
    for (int process = 0; process < 3; ++process) {
        const BenchmarkHome home(0);
        counts.append(
            instructionsOf({u"--toggle-collect=repeatForCounting"_s},
                           {QStringLiteral(REPAINT), u"--only"_s, work, QString::number(repetitions)},
                           home.fixedEnvironment()) /
            repetitions);
    }
    std::sort(counts.begin(), counts.end());
    return counts[1];
}

Count countRepaint(const QString &work, const QString &floorWork, int repetitions) {
    return {countRepetition(work, repetitions), countRepetition(floorWork, repetitions)};
}

struct Phase {
    QString name;
    /// In the table.
    QString title;
    double unit;
    std::function<Count()> count;
};

QList<Phase> phases() {
    constexpr double thousand = 1e3;
    constexpr double million = 1e6;
    return {{u"start-0-plug-ins"_s, u"start, 0 plug-ins, million instructions"_s, million,
             [] { return countStart(0); }},
            {u"start-10-plug-ins"_s, u"start, 10 plug-ins, million instructions"_s, million,
             [] { return countStart(10); }},
            {u"page-switch"_s, u"page switch, thousand instructions"_s, thousand,
             [] { return countRepaint(u"page-switch"_s, u"bare-page-switch"_s, switches); }},
            {u"lamp"_s, u"changed lamp, thousand instructions"_s, thousand,
             [] { return countRepaint(u"lamp"_s, u"bare-label"_s, lampChanges); }}};
}

void print(QTextStream &out, const QString &name, qint64 count) {
    out << name.leftJustified(24) << QString::number(count).rightJustified(12) << '\n';
    out.flush();
}

/// Which of its ways through memory and text the C library takes depends on the processor.
QString processor() {
    QFile file(u"/proc/cpuinfo"_s);
    const bool hasAvx2 = file.open(QIODevice::ReadOnly) && file.readAll().contains(" avx2");
    return QSysInfo::currentCpuArchitecture() + (hasAvx2 ? " avx2"_L1 : ""_L1);
}

void printSurroundings(QTextStream &out) {
    out << "# Counted with\n";
    for (const char *const package :
         {"libc6", "libstdc++6", "libqt6core6", "libqt6gui6", "libqt6widgets6", "libfontconfig1",
          "libfreetype6", "fonts-liberation", "g++", "valgrind"})
        out << outputOf(u"dpkg-query"_s,
                        {u"-W"_s, u"-f"_s, u"with ${Package} ${Version}\\n"_s, QString::fromLatin1(package)},
                        QProcessEnvironment::systemEnvironment(), QProcess::StandardOutput);
    out << "with processor " << processor() << '\n';
}

void printRows() {
    for (const Phase &phase : phases()) {
        const Count count = phase.count();
        printTableRow(phase.title, double(count.launcher) / phase.unit, double(count.floor) / phase.unit);
    }
}

void printBaseline() {
    QTextStream out(stdout);
    out << "# Instructions that each phase takes, and the floor's. Renewed by: benchmarks/check-instructions "
           "renew\n";
    for (const Phase &phase : phases()) {
        const Count count = phase.count();
        print(out, phase.name, count.launcher);
        print(out, phase.name + "-floor"_L1, count.floor);
    }
    printSurroundings(out);
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc > 1 && QByteArray(argv[1]) == "--rows")
        printRows();
    else
        printBaseline();
    return 0;
}
