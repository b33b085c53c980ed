// SPDX-License-Identifier: GPL-3.0-or-later
// Start of the launcher against the floor, in turn: time from exec to the first frame, resident and proportional
// memory then. Prints a table of medians.
//
//   measure-start [RUNS]
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <ctime>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconsPerPage = 10;

struct Sample {
    double milliseconds = 0;
    double residentMb = 0;
    double proportionalMb = 0;
};

qint64 monotonicNs() {
    timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
}

/// A home with as many plug-ins as wanted, each a library file of its own, ten a page.
class Instrument {
public:
    explicit Instrument(int plugins) {
        QDir(home.path()).mkpath(u"talvenor"_s);
        QFile::copy(QStringLiteral(FRAME_PLUGIN), home.filePath(u"libframe.so"_s));
        QStringList pages;
        QString groups = u"[frame]\nver=2\nname=libframe.so\n"_s;
        QString lists;
        for (int first = 0; first < plugins; first += iconsPerPage) {
            const QString page = first == 0 ? u"zr"_s : u"page%1"_s.arg(first / iconsPerPage);
            QStringList names{first == 0 ? u"frame"_s : QString()};
            names.removeAll(QString());
            for (int i = first; i < qMin(plugins, first + iconsPerPage); ++i) {
                names.append(u"tile%1"_s.arg(i));
                groups += pluginGroup(i, i - first);
            }
            pages.append(page);
            lists += page + u'=' + names.join(u' ') + u'\n';
        }
        QFile store(home.filePath(u"talvenor/zr-launcher.conf"_s));
        if (store.open(QIODevice::WriteOnly))
            QTextStream(&store) << "[plugins]\npath=" << home.path() << "\npersistent=" << pages.join(u' ')
                                << '\n'
                                << lists << groups;
    }

    QProcessEnvironment environment() const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_CONFIG_HOME"_s, home.path());
        environment.insert(u"XDG_CONFIG_DIRS"_s, home.filePath(u"none"_s));
        environment.insert(u"ZR_SYSROOT"_s, home.path());
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        return environment;
    }

private:
    QString pluginGroup(int number, int cell) const {
        const QString file = u"libtile%1.so"_s.arg(number);
        QFile::copy(QStringLiteral(TILE_PLUGIN), home.filePath(file));
        return u"[tile%1]\nver=2\nrow=%2\ncol=%3\nname=%4\n"_s.arg(number)
            .arg(cell / 2 + 1)
            .arg(cell % 2 + 1)
            .arg(file);
    }

    QTemporaryDir home;
};

Sample run(const QString &program, const QStringList &arguments, QProcessEnvironment environment) {
    QProcess process;
    environment.insert(u"ZR_BENCH_START_NS"_s, QString::number(monotonicNs()));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.waitForFinished();
    const QByteArrayList figures = process.readAllStandardOutput().trimmed().split(' ');
    if (figures.size() != 3)
        qFatal("%s told no first frame: %s", qPrintable(program), process.readAllStandardError().constData());
    return {figures[0].toDouble() / 1000, figures[1].toDouble() / 1024, figures[2].toDouble() / 1024};
}

double median(const QList<Sample> &samples, double Sample::*figure) {
    QList<double> values;
    for (const Sample &sample : samples)
        values.append(sample.*figure);
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void printRow(QTextStream &out, int plugins, const char *what, const QList<Sample> &launcher,
              const QList<Sample> &floor, double Sample::*figure) {
    const double ours = median(launcher, figure);
    const double least = median(floor, figure);
    out << QString::asprintf("| %3d | %-21s | %8.1f | %8.1f | %5.2f |\n", plugins, what, ours, least,
                             ours / least);
}

} // namespace

int main(int argc, char *argv[]) {
    const int runs = argc > 1 ? QByteArray(argv[1]).toInt() : 15;
    QTextStream out(stdout);
    out << "| plug-ins | figure | launcher | floor | ratio |\n|---|---|---|---|---|\n";
    for (const int plugins : {1, 10, 70, 200}) {
        const Instrument instrument(plugins);
        QList<Sample> launcher;
        QList<Sample> floor;
        for (int i = 0; i < runs; ++i) {
            launcher.append(run(QStringLiteral(LAUNCHER), {}, instrument.environment()));
            floor.append(run(QStringLiteral(FLOOR), {QString::number(plugins)}, instrument.environment()));
        }
        printRow(out, plugins, "first frame, ms", launcher, floor, &Sample::milliseconds);
        printRow(out, plugins, "resident, MiB", launcher, floor, &Sample::residentMb);
        printRow(out, plugins, "proportional, MiB", launcher, floor, &Sample::proportionalMb);
        out.flush();
    }
}
