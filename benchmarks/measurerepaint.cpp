// SPDX-License-Identifier: GPL-3.0-or-later
// What is painted again while the launcher is used, against a bare screen: the switch of the page, a changed lamp.
//
//   measure-repaint [RUNS]         rows of medians
//   measure-repaint --only WHAT TIMES
//                                  one of the works below, repeated inside repeatForCounting()
#include "barescreen.h"
#include "benchmarkhome.h"
#include "median.h"
#include "paintwatch.h"
#include "tablerow.h"
#include "ui/colourchoice.h"
#include "ui/iconpage.h"
#include "ui/launcherwindow.h"

#include <checkbutton.h>
#include <ledpanel.h>
#include <styleoverride.h>

#include <QApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize screenSize(800, 480);
constexpr int lampCount = 24;
/// Of a panel with so many lamps; a panel with few has rows of 25 pixels.
constexpr int lampRow = 17;
constexpr double aimOfSwitch = 1.2;

/// Work that paints; the argument counts its repetitions.
using Work = std::function<void(int)>;
using Works = QMap<QString, Work>;

QString lampName(int index) {
    return u"L%1"_s.arg(index);
}

/// The launcher with two pages of ten tiles.
class Screen {
public:
    Screen() {
        window.resize(screenSize);
        window.show();
        buttons = window.findChildren<CheckButton *>();
        if (buttons.size() != 2)
            qFatal("The launcher has %lld pages, not two.", static_cast<long long>(buttons.size()));
        choosePage(0);
    }

    /// Leaves the panel without lamps: no card is inserted.
    void choosePage(int index) { buttons[index]->click(); }

    void setUpLamps() {
        QStringList names;
        for (int i = 0; i < lampCount; ++i)
            names.append(lampName(i));
        window.setupLeds(names);
    }

    void changeLamp(bool isSet) {
        QList<QPair<QString, QString>> states{{lampName(1), isSet ? u"present"_s : u"none"_s}};
        window.updateLeds(states);
    }

    LauncherWindow window;

private:
    QList<CheckButton *> buttons;
};

/// What has been asked for is done and painted.
void finish() {
    QCoreApplication::sendPostedEvents();
}

/// Work that paints nothing would count as quick.
void mustPaint(const Work &work) {
    for (int i = 0; i < 2; ++i) {
        const PaintWatch watch(qApp);
        work(i);
        finish();
        if (watch.paintings() == 0)
            qFatal("Nothing was painted.");
    }
}

double microseconds(const Work &work, int repetition) {
    QElapsedTimer timer;
    timer.start();
    work(repetition);
    finish();
    return double(timer.nsecsElapsed()) / 1e3;
}

struct Medians {
    double launcher = 0;
    double floor = 0;
};

/// Both in turn, in microseconds.
Medians compare(const Work &launcher, const Work &floor, int runs) {
    mustPaint(launcher);
    mustPaint(floor);
    QList<double> launcherTimes;
    QList<double> floorTimes;
    for (int i = 0; i < runs; ++i) {
        launcherTimes.append(microseconds(launcher, i));
        floorTimes.append(microseconds(floor, i));
    }
    return {median(launcherTimes), median(floorTimes)};
}

void printSwitch(const Works &works, int runs) {
    const Medians us = compare(works[u"page-switch"_s], works[u"bare-page-switch"_s], runs);
    printTableRow(u"page switch to painted frame, us"_s, us.launcher, us.floor, u"1.20 × floor"_s,
                  aimOfSwitch * us.floor);
}

/// Whether nothing but the panel was painted. It fills its own ground, so that not even its window has to.
bool isPanelAlone(const PaintWatch &watch, const LedPanel &panel) {
    for (const QWidget *const widget : watch.regions().keys()) {
        if (widget != &panel)
            std::fprintf(stderr, "A changed lamp has %s \"%s\" painted.\n", widget->metaObject()->className(),
                         qPrintable(widget->objectName()));
    }
    return watch.regions().keys() == QList<const QWidget *>{&panel};
}

void printLamp(const Works &works, int runs, const LedPanel &panel) {
    const Work change = works[u"lamp"_s];
    const Medians us = compare(change, works[u"bare-label"_s], runs);
    printTableRow(u"changed lamp to painted frame, us"_s, us.launcher, us.floor);
    const PaintWatch watch(qApp);
    change(runs);
    QCoreApplication::processEvents();
    printTableRow(u"one lamp of 24 changes, pixels painted of all widgets (floor: the panel)"_s, watch.area(),
                  panel.width() * panel.height(), u"one row of the panel, nothing else"_s,
                  isPanelAlone(watch, panel) ? panel.width() * lampRow : 0);
}

} // namespace

/// Found by its name: only what happens in here is counted.
extern "C" [[gnu::noinline]] void repeatForCounting(const Work &work, int repetitions) {
    for (int i = 0; i < repetitions; ++i) {
        work(i);
        finish();
    }
}

namespace {

/// Before the application is made.
void wearEnvironment(const QProcessEnvironment &environment) {
    for (const char *const name : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS", "ZR_SYSROOT", "QT_QPA_PLATFORM"})
        qputenv(name, environment.value(QString::fromLatin1(name)).toLocal8Bit());
    qunsetenv("ZR_BENCH_START_NS");
}

void wearLook() {
    QApplication::setFont(QFont(u"Liberation Sans"_s));
    ColourChoice::wear(PaletteFactory::Day);
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

void printOnlyWhatEndsTheProgram(QtMsgType type, const QMessageLogContext &, const QString &text) {
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

void repeatOne(const Works &works, const QString &name, int repetitions) {
    const Work work = works.value(name);
    if (!work)
        qFatal("There is no work of that name.");
    // What is made once only is made now.
    mustPaint(work);
    repeatForCounting(work, repetitions);
}

} // namespace

int main(int argc, char *argv[]) {
    const BenchmarkHome home(2 * BenchmarkHome::iconsPerPage);
    wearEnvironment(home.environment());
    const QApplication application(argc, argv);
    qInstallMessageHandler(printOnlyWhatEndsTheProgram);
    wearLook();

    Screen screen;
    QCoreApplication::processEvents();
    const auto *const panel = screen.window.findChild<LedPanel *>();
    BareScreen bare(screen.window.findChild<IconPage *>()->size(), {panel->width(), lampRow});
    bare.show();
    QCoreApplication::processEvents();
    const Works works{{u"page-switch"_s, [&](int i) { screen.choosePage((i + 1) % 2); }},
                      {u"lamp"_s, [&](int i) { screen.changeLamp(i % 2 == 0); }},
                      {u"bare-page-switch"_s, [&](int i) { bare.choosePage((i + 1) % 2); }},
                      {u"bare-label"_s, [&](int i) { bare.changeLabel(i % 2 == 0); }}};
    const QStringList words = QCoreApplication::arguments();
    if (words.value(1) == "--only"_L1) {
        screen.setUpLamps();
        finish();
        repeatOne(works, words.value(2), words.value(3).toInt());
        return 0;
    }
    const int runs = words.size() > 1 ? words[1].toInt() : 301;
    printSwitch(works, runs);
    screen.setUpLamps();
    QCoreApplication::processEvents();
    printLamp(works, runs, *panel);
    return 0;
}
