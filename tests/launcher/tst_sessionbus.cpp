// SPDX-License-Identifier: GPL-3.0-or-later
#include "sessionbus.h"

#include "businbox.h"
#include "bussender.h"
#include "privatebus.h"

#include <QLocalServer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// A bus that ends, and another one at its address.
class SessionBusTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void signalsAreHeardOnEachNewBus();
    void silentBusIsWaitedFor();
    void attemptMayBeUnderWayAtTheEnd();

private:
    static bool isConnected() { return SessionBus::instance()->connection().isConnected(); }
    void loseTheBus();
    void hear(int number);

    const QTemporaryDir directory;
    const QString socket = directory.filePath(u"bus"_s);
    PrivateBus bus{socket};
    std::unique_ptr<BusInbox> inbox;
    std::unique_ptr<QSignalSpy> announced;
    std::unique_ptr<QSignalSpy> returns;
};

void SessionBusTest::initTestCase() {
    QVERIFY(!bus.address().isEmpty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address().toLocal8Bit());
}

void SessionBusTest::init() {
    QTRY_VERIFY(isConnected());
    inbox =
        std::make_unique<BusInbox>(u"zr.card"_s, QMap<QString, QString>{{u"removed"_s, u"si"_s}}, nullptr);
    inbox->listen();
    connect(SessionBus::instance(), &SessionBus::isBack, inbox.get(), &BusInbox::listen);
    announced = std::make_unique<QSignalSpy>(inbox.get(), &BusInbox::announced);
    returns = std::make_unique<QSignalSpy>(SessionBus::instance(), &SessionBus::isBack);
}

void SessionBusTest::loseTheBus() {
    bus.kill();
    QTRY_VERIFY(!isConnected());
}

void SessionBusTest::hear(int number) {
    const BusSender sender;
    QVERIFY(sender.send(u"/"_s, u"zr.card"_s, u"removed"_s, {u"e1"_s, number}));
    QTRY_COMPARE(announced->size(), 1);
    const auto message = announced->takeFirst().constFirst().value<QDBusMessage>();
    QCOMPARE(message.arguments(), QVariantList({u"e1"_s, number}));
}

void SessionBusTest::signalsAreHeardOnEachNewBus() {
    hear(0);
    for (int round = 1; round <= 3; ++round) {
        loseTheBus();
        QVERIFY(bus.restart());
        QTRY_COMPARE(returns->size(), round);
        QVERIFY(isConnected());
        hear(round);
    }
}

void SessionBusTest::silentBusIsWaitedFor() {
    loseTheBus();
    QLocalServer silent;
    const QSignalSpy calls(&silent, &QLocalServer::newConnection);
    // The bus that was killed left its own behind.
    QLocalServer::removeServer(socket);
    QVERIFY(silent.listen(socket));
    QTRY_COMPARE(calls.size(), 2);
    QCOMPARE(returns->size(), 0);
    silent.close();
    QVERIFY(bus.restart());
    QTRY_COMPARE(returns->size(), 1);
    hear(1);
}

void SessionBusTest::attemptMayBeUnderWayAtTheEnd() {
    loseTheBus();
    QLocalServer silent;
    QLocalServer::removeServer(socket);
    QVERIFY(silent.listen(socket));
    QTRY_VERIFY(silent.hasPendingConnections());
    // While the bus is still silent.
    delete SessionBus::instance();
}

QTEST_GUILESS_MAIN(SessionBusTest)
#include "tst_sessionbus.moc"
