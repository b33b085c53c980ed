// SPDX-License-Identifier: GPL-3.0-or-later
// What cards cost: see docs/performance.md. Everything in one process on the offscreen platform, over a real bus and real
// sockets:  dbus-run-session -- build/release/benchmarks/measure-cards
#include "insertedcards.h"
#include "median.h"
#include "paintwatch.h"
#include "processuse.h"
#include "tablerow.h"
#include "testconfig.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

template <typename Condition>
bool runUntil(Condition condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition() && timer.elapsed() < 5000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    return condition();
}

void sendSignal(const QString &name, const QVariantList &arguments) {
    static QDBusConnection sender = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"sender"_s);
    QDBusMessage message = QDBusMessage::createSignal(u"/"_s, u"zr.card"_s, name);
    message.setArguments(arguments);
    sender.send(message);
}

QByteArray update(int number, const char *state) {
    QByteArray states;
    for (int i = 0; i < number; ++i)
        states += QByteArray(i ? "," : "") + "\"L" + QByteArray::number(i) + "\":\"" + state + '"';
    return "{\"indicators\":{" + states + "}}\n";
}

void measureAnnouncement(LauncherWindow &window, PaintWatch &watch) {
    QList<double> times;
    for (int sn = 1; sn <= 100; ++sn) {
        FakeCard card;
        card.setReply("status alarms", "LOS\nAIS\nLOF\nRAI");
        const int before = watch.paintings();
        QElapsedTimer timer;
        timer.start();
        sendSignal(u"inserted"_s, {u"gbe"_s, sn, card.cardiface(), card.poller()});
        runUntil([&] { return window.cardType() == "GbE"_L1 && watch.paintings() > before; });
        times.append(double(timer.nsecsElapsed()) / 1e6);
        sendSignal(u"removed"_s, {u"gbe"_s, sn});
        runUntil([&] { return cardsOf(window).isEmpty(); });
    }
    printTableRowWithoutFloor(u"card announced to its page and lamps painted, ms"_s, median(times));
}

void measureUpdate(FakeCard &card, PaintWatch &watch) {
    QList<double> times;
    for (int i = 0; i < 200; ++i) {
        // Longer than the interval in which updates are told together.
        std::this_thread::sleep_for(25ms);
        QCoreApplication::processEvents();
        const int before = watch.paintings();
        QElapsedTimer timer;
        timer.start();
        card.sendUpdate(update(4, i % 2 ? "none" : "present"));
        runUntil([&] { return watch.paintings() > before; });
        times.append(double(timer.nsecsElapsed()) / 1e6);
    }
    printTableRowWithoutFloor(u"update on the wire to its lamp painted, ms"_s, median(times));
}

/// The longest time that an input event would have waited during a second of updates.
double longestWait(FakeCard &card, int updatesPerSecond, qint64 &sent) {
    std::atomic<bool> goesOn = true;
    std::thread sender([&] {
        const auto start = std::chrono::steady_clock::now();
        for (sent = 0; goesOn; ++sent) {
            card.sendUpdate(update(24, sent % 2 ? "none" : "present"));
            std::this_thread::sleep_until(start + (sent + 1) * 1'000'000us / updatesPerSecond);
        }
    });
    double longest = 0;
    QElapsedTimer sinceLast;
    QTimer heartbeat;
    heartbeat.setTimerType(Qt::PreciseTimer);
    QObject::connect(&heartbeat, &QTimer::timeout, [&] {
        longest = std::max(longest, double(sinceLast.nsecsElapsed()) / 1e6 - 5), sinceLast.start();
    });
    heartbeat.start(5);
    sinceLast.start();
    QElapsedTimer whole;
    whole.start();
    while (whole.elapsed() < 1000)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    goesOn = false;
    sender.join();
    return longest;
}

void measureRate(FakeCard &card) {
    qint64 sent = 0;
    const double longest = longestWait(card, 30000, sent);
    printTableRowWithoutFloor(
        u"an input event waits at most, %1 updates of 24 lamps in a second, ms"_s.arg(sent), longest);
}

void measurePanel(LauncherWindow &window) {
    LedPanel *const panel = ledPanelOf(window);
    for (const int number : {4, 24, 96}) {
        QStringList names;
        for (int i = 0; i < number; ++i)
            names.append(u'L' + QString::number(i));
        window.setupLeds(names);
        QCoreApplication::processEvents();
        QElapsedTimer timer;
        timer.start();
        constexpr int repetitions = 200;
        for (int i = 0; i < repetitions; ++i) {
            QList<QPair<QString, QString>> states;
            for (const QString &name : names)
                states.append({name, i % 2 ? u"none"_s : u"present"_s});
            window.updateLeds(states);
            QCoreApplication::processEvents();
        }
        printTableRowWithoutFloor(u"%1 lamps all change and are painted, ms"_s.arg(number),
                                  double(timer.nsecsElapsed()) / 1e6 / repetitions);
        const PaintWatch watch(qApp);
        QList<QPair<QString, QString>> one{{u"L1"_s, u"history"_s}};
        window.updateLeds(one);
        QCoreApplication::processEvents();
        printTableRow(
            u"one lamp of %1 changes, pixels painted of all widgets (floor: the panel)"_s.arg(number),
            watch.area(), panel->width() * panel->height());
    }
}

void measureRest() {
    constexpr int seconds = 20;
    const qint64 before = useOf(u"self"_s).wakeUps;
    QTimer::singleShot(seconds * 1000, qApp, &QCoreApplication::quit);
    QApplication::exec();
    // The end of the measurement is one of them.
    printTableRowWithoutFloor(u"wake-ups a minute at rest, three cards inserted"_s,
                              double(useOf(u"self"_s).wakeUps - before - 1) * 60 / seconds);
}

} // namespace

int main(int argc, char *argv[]) {
    const QTemporaryDir place;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", place.path().toLocal8Bit());
    qputenv("ZR_SYSROOT", place.path().toLocal8Bit());
    const QApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    TestConfig().setPersistent(u"none"_s);
    LauncherWindow window;
    window.resize(800, 480);
    window.show();
    QCoreApplication::processEvents();
    PaintWatch watch(ledPanelOf(window));

    measureAnnouncement(window, watch);
    FakeCard e1;
    FakeCard otdr;
    FakeCard gbe;
    for (FakeCard *const card : {&e1, &otdr, &gbe})
        card->setReply("status alarms", "L0\nL1\nL2\nL3");
    insert(window, u"otdr"_s, 1, otdr);
    insert(window, u"gbe"_s, 1, gbe);
    insert(window, u"e1"_s, 1, e1);
    runUntil([&] {
        e1.sendUpdate(update(4, "none"));
        return ledPanelOf(window)->quality(u"L0"_s) == Good;
    });
    measureUpdate(e1, watch);
    measureRate(e1);
    measurePanel(window);
    measureRest();
    return 0;
}
