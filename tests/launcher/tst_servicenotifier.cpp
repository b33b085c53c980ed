// SPDX-License-Identifier: GPL-3.0-or-later
#include "servicenotifier.h"

#include "notifysocket.h"

#include <QTest>
#include <QWidget>

#include <algorithm>

namespace {

/// Notes whether anything was told before it was painted.
class ToldWindow : public QWidget {
public:
    explicit ToldWindow(NotifySocket &manager) : socket(manager) {}

    bool isPainted = false;
    bool wasToldEarly = false;

protected:
    void paintEvent(QPaintEvent *) override {
        isPainted = true;
        wasToldEarly = wasToldEarly || !socket.messages().isEmpty();
    }

private:
    NotifySocket &socket;
};

} // namespace

class ServiceNotifierTest : public QObject {
    Q_OBJECT

private slots:
    void cleanup();

    void readyComesAfterTheFirstFrame();
    void readyComesOnce();
    void aliveIsToldEveryHalfInterval();
    void watchdogOfAnotherProcessIsNotFed();
    void endIsTold();
    void nothingHappensWithoutAManager();

private:
    static qsizetype runningTimers(const QObject &object);
};

void ServiceNotifierTest::cleanup() {
    for (const char *const name : {"NOTIFY_SOCKET", "WATCHDOG_USEC", "WATCHDOG_PID"})
        qunsetenv(name);
}

qsizetype ServiceNotifierTest::runningTimers(const QObject &object) {
    const QList<QTimer *> timers = object.findChildren<QTimer *>();
    return std::ranges::count_if(timers, [](const QTimer *timer) { return timer->isActive(); });
}

void ServiceNotifierTest::readyComesAfterTheFirstFrame() {
    NotifySocket socket;
    qputenv("NOTIFY_SOCKET", socket.path().toLocal8Bit());
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    QCoreApplication::processEvents();
    QVERIFY(socket.messages().isEmpty());
    window.show();
    QTRY_COMPARE(socket.messages(), QByteArrayList{"READY=1"});
    QVERIFY(window.isPainted);
    QVERIFY(!window.wasToldEarly);
    QCOMPARE(runningTimers(notifier), 0);
}

void ServiceNotifierTest::readyComesOnce() {
    NotifySocket socket;
    qputenv("NOTIFY_SOCKET", socket.path().toLocal8Bit());
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    window.show();
    QTRY_COMPARE(socket.messages().size(), 1);
    window.isPainted = false;
    window.update();
    QTRY_VERIFY(window.isPainted);
    QCOMPARE(runningTimers(notifier), 0);
    QCOMPARE(socket.messages().size(), 1);
}

void ServiceNotifierTest::aliveIsToldEveryHalfInterval() {
    NotifySocket socket;
    qputenv("NOTIFY_SOCKET", socket.path().toLocal8Bit());
    qputenv("WATCHDOG_USEC", "100000");
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    window.show();
    const QByteArrayList expected = {"READY=1", "WATCHDOG=1", "WATCHDOG=1", "WATCHDOG=1"};
    QTRY_COMPARE(socket.messages().mid(0, 4), expected);
    const QList<QTimer *> timers = notifier.findChildren<QTimer *>();
    QVERIFY(std::ranges::any_of(
        timers, [](const QTimer *timer) { return timer->isActive() && timer->interval() == 50; }));
}

void ServiceNotifierTest::watchdogOfAnotherProcessIsNotFed() {
    NotifySocket socket;
    qputenv("NOTIFY_SOCKET", socket.path().toLocal8Bit());
    qputenv("WATCHDOG_USEC", "100000");
    qputenv("WATCHDOG_PID", "1");
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    window.show();
    QTRY_COMPARE(socket.messages(), QByteArrayList{"READY=1"});
    QCOMPARE(runningTimers(notifier), 0);
}

void ServiceNotifierTest::endIsTold() {
    NotifySocket socket;
    qputenv("NOTIFY_SOCKET", socket.path().toLocal8Bit());
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    QMetaObject::invokeMethod(QCoreApplication::instance(), &QCoreApplication::quit, Qt::QueuedConnection);
    QCoreApplication::exec();
    QCOMPARE(socket.messages(), QByteArrayList{"STOPPING=1"});
}

void ServiceNotifierTest::nothingHappensWithoutAManager() {
    NotifySocket socket;
    qputenv("WATCHDOG_USEC", "100000");
    ToldWindow window(socket);
    const ServiceNotifier notifier(&window);
    window.show();
    QTRY_VERIFY(window.isPainted);
    QCoreApplication::processEvents();
    QCOMPARE(runningTimers(notifier), 0);
    QVERIFY(socket.messages().isEmpty());
}

QTEST_MAIN(ServiceNotifierTest)
#include "tst_servicenotifier.moc"
