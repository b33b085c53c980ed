// SPDX-License-Identifier: GPL-3.0-or-later
#include "busreceiver.h"

#include <QSignalSpy>
#include <QTest>

#include <atomic>
#include <thread>

using namespace Qt::Literals::StringLiterals;

class BusReceiverTest : public QObject {
    Q_OBJECT

private slots:
    void signalsAreTakenInOrder();
    void onlyTheFirstThatWaitsIsTold();
    void floodKeepsTheNewestOfEachName();
    void floodIsOverWhenNothingCame();
    void everySignalOfAnotherThreadIsTakenOrCounted();

private:
    static void take(BusReceiver &receiver, const QString &name, int number, int times = 1) {
        QDBusMessage message = QDBusMessage::createSignal(u"/"_s, u"zr.card"_s, name);
        message << number;
        for (int i = 0; i < times; ++i)
            receiver.take(message);
    }
    static QStringList takeAll(BusReceiver &receiver) {
        QStringList taken;
        while (const std::optional<QDBusMessage> message = receiver.next())
            taken.append(message->member() + QString::number(message->arguments().constFirst().toInt()));
        return taken;
    }
};

void BusReceiverTest::signalsAreTakenInOrder() {
    BusReceiver receiver;
    take(receiver, u"inserted"_s, 1);
    take(receiver, u"removed"_s, 1);
    take(receiver, u"inserted"_s, 2);
    QCOMPARE(takeAll(receiver), QStringList({u"inserted1"_s, u"removed1"_s, u"inserted2"_s}));
    QVERIFY(receiver.isEmpty());
}

void BusReceiverTest::onlyTheFirstThatWaitsIsTold() {
    BusReceiver receiver;
    const QSignalSpy filled(&receiver, &BusReceiver::filled);
    take(receiver, u"inserted"_s, 1, 3);
    QCOMPARE(filled.size(), 1);
    takeAll(receiver);
    take(receiver, u"inserted"_s, 2);
    QCOMPARE(filled.size(), 2);
}

void BusReceiverTest::floodKeepsTheNewestOfEachName() {
    BusReceiver receiver;
    const QSignalSpy flooded(&receiver, &BusReceiver::flooded);
    take(receiver, u"removed"_s, 1);
    take(receiver, u"inserted"_s, 1, BusReceiver::mostWaiting - 1);
    QCOMPARE(flooded.size(), 0);
    take(receiver, u"removed"_s, 2);
    take(receiver, u"inserted"_s, 3);
    QCOMPARE(flooded.size(), 1);
    QCOMPARE(takeAll(receiver), QStringList());
    QCOMPARE(receiver.takeCount(), BusReceiver::mostWaiting + 2);
    receiver.releaseNewest();
    QCOMPARE(takeAll(receiver), QStringList({u"removed2"_s, u"inserted3"_s}));
}

void BusReceiverTest::floodIsOverWhenNothingCame() {
    BusReceiver receiver;
    take(receiver, u"inserted"_s, 1, BusReceiver::mostWaiting + 1);
    QVERIFY(receiver.takeCount() > 0);
    take(receiver, u"inserted"_s, 2);
    QCOMPARE(takeAll(receiver), QStringList());
    QCOMPARE(receiver.takeCount(), 1);
    QCOMPARE(receiver.takeCount(), 0);
    take(receiver, u"inserted"_s, 3);
    QCOMPARE(takeAll(receiver), QStringList({u"inserted3"_s}));
}

void BusReceiverTest::everySignalOfAnotherThreadIsTakenOrCounted() {
    constexpr int number = 20'000;
    BusReceiver receiver;
    std::atomic<bool> isSent = false;
    std::thread sender([&] {
        for (int i = 1; i <= number; ++i)
            take(receiver, u"inserted"_s, i);
        isSent = true;
    });
    QStringList taken;
    while (!isSent)
        taken += takeAll(receiver);
    sender.join();
    taken += takeAll(receiver);
    QCOMPARE(taken.size() + receiver.takeCount(), qsizetype(number));
    receiver.releaseNewest();
    taken += takeAll(receiver);
    QCOMPARE(taken.constLast(), u"inserted%1"_s.arg(number));
}

QTEST_GUILESS_MAIN(BusReceiverTest)
#include "tst_busreceiver.moc"
