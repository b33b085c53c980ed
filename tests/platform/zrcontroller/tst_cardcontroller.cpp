// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcontroller.h"

#include "dataproxy.h"
#include "fakecard.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Which controllers there are, and whose cards they have.
class CardControllerTest : public QObject {
    Q_OBJECT

private slots:
    void pluginFindsTheControllerOfACard();
    void firstOfTwoWithTheSameIdentityIsFound();
    void cardLetGoOfIsNotFound();
    void controllerLetGoOfTakesTheNextCardOfItsType();
    void controllerLetGoOfPrefersItsOwnCard();
    void controllerLetGoOfForgetsDataAndListeners();

private:
    using Controller = std::unique_ptr<CardController>;

    static CardController *insert(const QString &name, const QString &sn, const QString &poller = {}) {
        return CardController::newCard(name, sn, u"unix:/nowhere"_s, poller);
    }
};

void CardControllerTest::pluginFindsTheControllerOfACard() {
    const Controller first(insert(u"e1"_s, u"1"_s));
    const Controller second(insert(u"e1"_s, u"2"_s));
    const Controller other(insert(u"gbe"_s, u"1"_s));
    QCOMPARE(CardController::card(u"e1"_s, u"2"_s), second.get());
    QCOMPARE(CardController::card(u"gbe"_s, u"1"_s), other.get());
    QCOMPARE(CardController::card(u"gbe"_s, u"2"_s), nullptr);
    QCOMPARE(CardController::cards(u"e1"_s), QList<CardController *>({first.get(), second.get()}));
}

void CardControllerTest::firstOfTwoWithTheSameIdentityIsFound() {
    const Controller first(insert(u"e1"_s, u"1"_s));
    Controller second(insert(u"e1"_s, u"1"_s));
    QVERIFY(first != second);
    QCOMPARE(CardController::card(u"e1"_s, u"1"_s), first.get());
}

void CardControllerTest::cardLetGoOfIsNotFound() {
    const Controller controller(insert(u"e1"_s, u"1"_s));
    controller->freeCard();
    QCOMPARE(CardController::card(u"e1"_s, u"1"_s), nullptr);
    QVERIFY(CardController::cards(u"e1"_s).isEmpty());
}

void CardControllerTest::controllerLetGoOfTakesTheNextCardOfItsType() {
    const Controller controller(insert(u"e1"_s, u"1"_s));
    controller->freeCard();
    const Controller other(insert(u"gbe"_s, u"1"_s));
    QVERIFY(other != controller);
    QCOMPARE(insert(u"e1"_s, u"2"_s), controller.get());
    QCOMPARE(controller->serial(), u"2"_s);
    QCOMPARE(CardController::card(u"e1"_s, u"2"_s), controller.get());
}

void CardControllerTest::controllerLetGoOfPrefersItsOwnCard() {
    const Controller first(insert(u"e1"_s, u"1"_s));
    const Controller second(insert(u"e1"_s, u"2"_s));
    first->freeCard();
    second->freeCard();
    QCOMPARE(insert(u"e1"_s, u"2"_s), second.get());
    QCOMPARE(insert(u"e1"_s, u"3"_s), first.get());
}

void CardControllerTest::controllerLetGoOfForgetsDataAndListeners() {
    FakeCard card;
    const Controller controller(insert(u"e1"_s, u"1"_s, card.poller()));
    DataProxy *const proxy = controller->dataProxy(u"indicators"_s, nullptr);
    QVERIFY(QTest::qWaitFor([&] {
        card.sendUpdate("{\"indicators\":{\"LOS\":1}}\n");
        return !proxy->data().isEmpty();
    }));
    QObject oldListener;
    int heard = 0;
    connect(controller.get(), &CardController::showErrorMessage, &oldListener, [&heard] { ++heard; });
    controller->freeCard();
    QVERIFY(proxy->data().isEmpty());

    QCOMPARE(insert(u"e1"_s, u"2"_s, card.poller()), controller.get());
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    controller->doCommand(u"options"_s);
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(heard, 0);
    // The proxy goes on with the new card's data.
    QVERIFY(QTest::qWaitFor([&] {
        card.sendUpdate("{\"indicators\":{\"AIS\":1}}\n");
        return proxy->data().contains(u"AIS"_s);
    }));
}

QTEST_GUILESS_MAIN(CardControllerTest)
#include "tst_cardcontroller.moc"
