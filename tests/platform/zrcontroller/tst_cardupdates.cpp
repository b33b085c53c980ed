// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcontroller.h"

#include "dataproxy.h"
#include "fakecard.h"
#include "measprocessor.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

class CountingProcessor : public MeasProcessor {
public:
    void process(QVariantMap &data) override { data.insert(u"seen"_s, ++updates); }
    int updates = 0;
};

} // namespace

/// The data streams of a card.
class CardUpdatesTest : public QObject {
    Q_OBJECT

private slots:
    void updateReachesItsProxy_data() { addWires(); }
    void updateReachesItsProxy();
    void streamsAreKeptApart();
    void processorSeesEveryUpdateFirst();
    void updatesThatFollowEachOtherFastAreToldTogether();
    void linesThatAreNoUpdatesAreToldOnce();
    void closedLineMakesTheDataDoubtfulAndIsOpenedAgain();
    void commandWaitsForTheUpdateItCauses_data() { addWires(); }
    void commandWaitsForTheUpdateItCauses();
    void commandWithoutUpdateDoesNotWaitLong();
    void sameProxyForTheSamePair();
    void proxyMadeLaterAsksForWhatWasTold();

private:
    using Controller = std::unique_ptr<CardController>;

    static void addWires() {
        QTest::addColumn<int>("wire");
        QTest::newRow("Unix-domain socket") << int(FakeCard::Unix);
        QTest::newRow("TCP") << int(FakeCard::Tcp);
        QTest::newRow("serial line") << int(FakeCard::Serial);
    }

    static Controller open(const FakeCard &card) {
        return Controller(CardController::newCard(u"e1"_s, u"1"_s, card.cardiface(), card.poller()));
    }

    /// The card's end of the update line takes a moment to be there.
    static bool sendUntil(FakeCard &card, const QByteArray &bytes, const std::function<bool()> &arrived) {
        return QTest::qWaitFor([&] {
            card.sendUpdate(bytes);
            return arrived();
        });
    }
};

void CardUpdatesTest::updateReachesItsProxy() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, nullptr);
    QVERIFY(proxy->data().isEmpty());
    QSignalSpy told(proxy, SIGNAL(updated(QVariantMap &, QString)));
    QVERIFY(sendUntil(card, "{\"indicators\":{\"LOS\":\"present\"}}\n", [&] { return !told.isEmpty(); }));
    QCOMPARE(told[0][1].toString(), u"indicators"_s);
    QCOMPARE(proxy->data(), QVariantMap({{u"LOS"_s, u"present"_s}}));
}

void CardUpdatesTest::streamsAreKeptApart() {
    FakeCard card;
    const Controller controller = open(card);
    DataProxy *const indicators = controller->dataProxy(u"indicators"_s, nullptr);
    DataProxy *const counts = controller->dataProxy(u"counts"_s, nullptr);
    QVERIFY(sendUntil(card, "{\"counts\":{\"n\":1},\"other\":{\"x\":2}}\n",
                      [&] { return !counts->data().isEmpty(); }));
    QVERIFY(indicators->data().isEmpty());
    QCOMPARE(counts->data().keys(), QStringList{u"n"_s});
}

void CardUpdatesTest::processorSeesEveryUpdateFirst() {
    FakeCard card;
    CountingProcessor processor;
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, &processor);
    QVERIFY(sendUntil(card, "{\"indicators\":{}}\n", [&] { return processor.updates > 0; }));
    const int before = processor.updates;
    card.sendUpdate(QByteArray("{\"indicators\":{}}\n").repeated(100));
    QTRY_VERIFY(processor.updates >= before + 100);
    QCOMPARE(proxy->data().value(u"seen"_s).toInt(), processor.updates);
}

void CardUpdatesTest::updatesThatFollowEachOtherFastAreToldTogether() {
    FakeCard card;
    CountingProcessor processor;
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, &processor);
    int told = 0;
    connect(proxy, &DataProxy::updated, this, [&told] { ++told; });
    QVERIFY(sendUntil(card, "{\"indicators\":{}}\n", [&] { return processor.updates > 0; }));
    card.sendUpdate(QByteArray("{\"indicators\":{}}\n").repeated(1000));
    QElapsedTimer timer;
    timer.start();
    QTRY_VERIFY(processor.updates >= 1000);
    QTRY_COMPARE(proxy->data().value(u"seen"_s).toInt(), processor.updates);
    QVERIFY2(told <= 10 + timer.elapsed() / 20, qPrintable(QString::number(told)));
}

void CardUpdatesTest::linesThatAreNoUpdatesAreToldOnce() {
    FakeCard card;
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, nullptr);
    QVERIFY(sendUntil(card, "{\"indicators\":{\"LOS\":1}}\n", [&] { return !proxy->data().isEmpty(); }));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"sends what is no update; lines dropped:"_s));
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    card.sendUpdate("nonsense\n{\n\xff\n");
    card.sendUpdate(QByteArray("nonsense\n").repeated(1000));
    card.sendUpdate("{\"indicators\":{\"LOS\":2}}\n");
    QTRY_COMPARE(proxy->data().value(u"LOS"_s).toInt(), 2);
}

void CardUpdatesTest::closedLineMakesTheDataDoubtfulAndIsOpenedAgain() {
    FakeCard card;
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, nullptr);
    QVERIFY(
        sendUntil(card, "{\"indicators\":{\"LOS\":\"none\"}}\n", [&] { return !proxy->data().isEmpty(); }));
    card.closeUpdates();
    QTRY_COMPARE(proxy->data(), QVariantMap({{u"LOS"_s, QString()}}));
    QVERIFY(sendUntil(card, "{\"indicators\":{\"LOS\":\"present\"}}\n",
                      [&] { return proxy->data().value(u"LOS"_s) == u"present"_s; }));
}

void CardUpdatesTest::commandWaitsForTheUpdateItCauses() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    const Controller controller = open(card);
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, nullptr);
    QVERIFY(sendUntil(card, "{\"indicators\":{\"LOS\":1}}\n", [&] { return !proxy->data().isEmpty(); }));
    // The last of those that were sent.
    card.sendUpdate("{\"indicators\":{\"LOS\":3}}\n");
    QTRY_COMPARE(proxy->data().value(u"LOS"_s).toInt(), 3);
    card.setUpdateAfter("status alarms reset", "{\"indicators\":{\"LOS\":2}}\n");
    QCOMPARE(controller->doCommandGetUpdate(u"status alarms reset"_s), 1);
    QCOMPARE(proxy->data().value(u"LOS"_s).toInt(), 2);
    QCOMPARE(card.commands(), QList<QByteArray>{"status alarms reset"});
}

void CardUpdatesTest::commandWithoutUpdateDoesNotWaitLong() {
    FakeCard card;
    const Controller controller = open(card);
    controller->dataProxy(u"indicators"_s, nullptr);
    // It is not the time for a reply that passes.
    card.setReply("options", "COMMAND-TIMEOUT=10000");
    controller->doCommand(u"options"_s);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(controller->doCommandGetUpdate(u"status alarms reset"_s), 0);
    QVERIFY2(timer.elapsed() < 9000, qPrintable(QString::number(timer.elapsed())));
    card.setReply("status alarms reset", "error");
    QCOMPARE(controller->doCommandGetUpdate(u"status alarms reset"_s), 0);
    card.close();
    QCOMPARE(controller->doCommandGetUpdate(u"status alarms reset"_s), -1);
}

void CardUpdatesTest::proxyMadeLaterAsksForWhatWasTold() {
    FakeCard card;
    card.setUpdateOnRequest("{\"indicators\":{\"LOS\":1},\"counts\":{\"n\":7}}\n");
    const Controller controller = open(card);
    const DataProxy *const indicators = controller->dataProxy(u"indicators"_s, nullptr);
    QTRY_VERIFY(!indicators->data().isEmpty());
    const DataProxy *const counts = controller->dataProxy(u"counts"_s, nullptr);
    QTRY_COMPARE(counts->data().value(u"n"_s).toInt(), 7);
}

void CardUpdatesTest::sameProxyForTheSamePair() {
    FakeCard card;
    CountingProcessor processor;
    const Controller controller = open(card);
    DataProxy *const plain = controller->dataProxy(u"indicators"_s, nullptr);
    QCOMPARE(controller->dataProxy(u"indicators"_s, nullptr), plain);
    QVERIFY(controller->dataProxy(u"indicators"_s, &processor) != plain);
    QVERIFY(controller->dataProxy(u"counts"_s, nullptr) != plain);
}

QTEST_GUILESS_MAIN(CardUpdatesTest)
#include "tst_cardupdates.moc"
