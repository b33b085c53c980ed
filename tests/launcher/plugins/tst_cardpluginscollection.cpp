// SPDX-License-Identifier: GPL-3.0-or-later
#include "plugins/cardpluginscollection.h"

#include "insertedcards.h"
#include "launcherfixture.h"

#include <cardcontroller.h>
#include <checkbutton.h>

#include <QPointer>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Collections of cards, with and without a card, staying and going.
class CardPluginsCollectionTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void persistentPageWithoutACardIsEnteredAndShowsNoLeds();
    void bindingShowsTheCardsLedsAtOnce();
    void removedCardLeavesThePersistentPage();
    void controllerIsKeptForTheNextCard();
    void controllerThatWasKeptIsKeptAgain();
    void controllerOfACardWithoutPersistentPagesIsDeleted();
    void secondCardOfATypeStaysBoundWhenTheFirstGoes();
    void bothModesMayBePersistent();
    void ledsOfTheShownCardComeBackWhenAnotherGoes();
    void pageOfACardGoesWithIt();
    void enteringAPageSwitchesTheCard();
    void refusedPageIsNotShown();
    void ledsOfAPageThatIsLeftAreNotShown();
    void pressOnTheLedsResetsTheCard();
    void cardThatRefusesTheNextPageLeavesNothingBehind();
    void emptyPageIsShownWhenTheOnlyOtherPageRefuses();

private:
    void open(const QString &persistent) {
        config.setPersistent(persistent);
        window = std::make_unique<LauncherWindow>();
        window->show();
    }
    CardPluginsCollection *persistentCollection() const {
        return window->findChild<CardPluginsCollection *>();
    }
    QStringList labels() const {
        QStringList texts;
        for (const CheckButton *const button : window->findChildren<CheckButton *>())
            texts.append(button->text());
        texts.sort();
        return texts;
    }
    void enter(const QString &label) const {
        for (CheckButton *const button : window->findChildren<CheckButton *>()) {
            if (button->text() == label)
                button->click();
        }
    }
    QString shown() const { return window->cardType(); }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
};

void CardPluginsCollectionTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
}

void CardPluginsCollectionTest::persistentPageWithoutACardIsEnteredAndShowsNoLeds() {
    open(u"zr e1"_s);
    enter(u"PCM"_s);
    QCOMPARE(shown(), u"PCM"_s);
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
    QVERIFY(persistentCollection()->enter());
}

void CardPluginsCollectionTest::bindingShowsTheCardsLedsAtOnce() {
    open(u"e1 zr"_s);
    QCOMPARE(shown(), u"Settings"_s);
    FakeCard card;
    card.setReply("status alarms", "LOS\nAIS");
    insert(*window, u"e1"_s, 1, card);
    QCOMPARE(ledPanelOf(*window)->names(), QStringList({u"LOS"_s, u"AIS"_s}));
    QCOMPARE(shown(), u"Settings"_s);
    QCOMPARE(labels(), QStringList({u"PCM"_s, u"Settings"_s}));
}

void CardPluginsCollectionTest::removedCardLeavesThePersistentPage() {
    open(u"zr e1"_s);
    FakeCard card;
    card.setReply("status alarms", "LOS");
    insert(*window, u"e1"_s, 1, card);
    enter(u"PCM"_s);
    QVERIFY(!ledPanelOf(*window)->names().isEmpty());
    remove(*window, u"e1"_s, 1);
    QCOMPARE(labels(), QStringList({u"PCM"_s, u"Settings"_s}));
    QCOMPARE(shown(), u"PCM"_s);
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
    enter(u"Settings"_s);
    enter(u"PCM"_s);
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
    // The next card of the type is bound again.
    FakeCard next;
    next.setReply("status alarms", "AIS");
    insert(*window, u"e1"_s, 2, next);
    QCOMPARE(ledPanelOf(*window)->names(), QStringList{u"AIS"_s});
}

void CardPluginsCollectionTest::controllerIsKeptForTheNextCard() {
    open(u"zr e1"_s);
    FakeCard card;
    insert(*window, u"e1"_s, 1, card);
    const QPointer<CardController> controller = CardController::card(u"e1"_s, u"1"_s);
    remove(*window, u"e1"_s, 1);
    QVERIFY(controller);
    QVERIFY(!CardController::card(u"e1"_s, u"1"_s));
    insert(*window, u"e1"_s, 2, card);
    QCOMPARE(CardController::card(u"e1"_s, u"2"_s), controller);
    remove(*window, u"e1"_s, 2);
}

void CardPluginsCollectionTest::controllerThatWasKeptIsKeptAgain() {
    open(u"zr sa"_s);
    FakeCard dual;
    dual.setReply("options", "ZR-SIG1");
    insert(*window, u"e1"_s, 1, dual);
    const QPointer<CardController> controller = CardController::card(u"e1"_s, u"1"_s);
    remove(*window, u"e1"_s, 1);
    // This one binds nothing that stays, but a plug-in of "sa" may still hold its controller.
    FakeCard single;
    insert(*window, u"e1"_s, 2, single);
    QCOMPARE(CardController::card(u"e1"_s, u"2"_s), controller);
    remove(*window, u"e1"_s, 2);
    QVERIFY(controller);
}

void CardPluginsCollectionTest::controllerOfACardWithoutPersistentPagesIsDeleted() {
    open(u"zr"_s);
    FakeCard card;
    insert(*window, u"gbe"_s, 1, card);
    const QPointer<CardController> controller = CardController::card(u"gbe"_s, u"1"_s);
    QVERIFY(controller);
    remove(*window, u"gbe"_s, 1);
    QVERIFY(!controller);
}

void CardPluginsCollectionTest::secondCardOfATypeStaysBoundWhenTheFirstGoes() {
    open(u"zr e1"_s);
    FakeCard first;
    first.setReply("status alarms", "FIRST");
    FakeCard second;
    second.setReply("status alarms", "SECOND");
    insert(*window, u"e1"_s, 1, first);
    insert(*window, u"e1"_s, 2, second);
    LedPanel *const panel = ledPanelOf(*window);
    // The first card's news are not shown any more.
    QVERIFY(showStates(first, R"({"FIRST":1})",
                       [&first] { return first.commands().count("status alarms") >= 2; }));
    QCOMPARE(panel->names(), QStringList{u"SECOND"_s});
    remove(*window, u"e1"_s, 1);
    enter(u"PCM"_s);
    QCOMPARE(panel->names(), QStringList{u"SECOND"_s});
    QTest::mouseClick(panel, Qt::LeftButton);
    QCOMPARE(second.commands().last(), QByteArray("status alarms reset"));
}

void CardPluginsCollectionTest::ledsOfTheShownCardComeBackWhenAnotherGoes() {
    open(u"zr e1"_s);
    FakeCard shownCard;
    shownCard.setReply("status alarms", "LINK");
    insert(*window, u"gbe"_s, 1, shownCard);
    FakeCard other;
    other.setReply("status alarms", "LOS");
    insert(*window, u"e1"_s, 1, other);
    QCOMPARE(shown(), u"GbE"_s);
    QCOMPARE(ledPanelOf(*window)->names(), QStringList{u"LOS"_s});
    remove(*window, u"e1"_s, 1);
    QCOMPARE(ledPanelOf(*window)->names(), QStringList{u"LINK"_s});
}

void CardPluginsCollectionTest::bothModesMayBePersistent() {
    open(u"zr e1 sa"_s);
    for (const int sn : {1, 2}) {
        FakeCard card;
        card.setReply("options", "ZR-SIG1");
        card.setReply("status alarms", "LOS");
        insert(*window, u"e1"_s, sn, card);
        enter(u"Signaling"_s);
        QCOMPARE(card.commands().mid(card.commands().size() - 3),
                 QList<QByteArray>({"operation sa", "parameters", "status alarms"}));
        enter(u"PCM"_s);
        QCOMPARE(ledPanelOf(*window)->names(), QStringList{u"LOS"_s});
        remove(*window, u"e1"_s, sn);
        QCOMPARE(labels(), QStringList({u"PCM"_s, u"Settings"_s, u"Signaling"_s}));
    }
    enter(u"Signaling"_s);
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
}

void CardPluginsCollectionTest::pageOfACardGoesWithIt() {
    open(u"zr"_s);
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    insert(*window, u"e1"_s, 1, card);
    QCOMPARE(labels(), QStringList({u"PCM"_s, u"Settings"_s, u"Signaling"_s}));
    remove(*window, u"e1"_s, 1);
    QCOMPARE(labels(), QStringList{u"Settings"_s});
    QCOMPARE(shown(), u"Settings"_s);
    QVERIFY(!persistentCollection());
    QVERIFY(!CardController::card(u"e1"_s, u"1"_s));
}

void CardPluginsCollectionTest::enteringAPageSwitchesTheCard() {
    open(u"zr"_s);
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    insert(*window, u"e1"_s, 1, card);
    QCOMPARE(shown(), u"PCM"_s);
    const qsizetype before = card.commands().size();
    enter(u"Signaling"_s);
    enter(u"Settings"_s);
    enter(u"Signaling"_s);
    enter(u"PCM"_s);
    QCOMPARE(card.commands().mid(before),
             QList<QByteArray>({"operation sa", "parameters", "status alarms", "status alarms",
                                "operation pcm", "parameters", "status alarms"}));
}

void CardPluginsCollectionTest::refusedPageIsNotShown() {
    open(u"zr"_s);
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    insert(*window, u"e1"_s, 1, card);
    card.setReply("operation sa", "error busy");
    enter(u"Signaling"_s);
    QCOMPARE(shown(), u"PCM"_s);
}

void CardPluginsCollectionTest::ledsOfAPageThatIsLeftAreNotShown() {
    open(u"zr"_s);
    FakeCard first;
    first.setReply("status alarms", "LOS");
    FakeCard second;
    second.setReply("status alarms", "LINK");
    insert(*window, u"e1"_s, 1, first);
    insert(*window, u"gbe"_s, 1, second);
    LedPanel *const panel = ledPanelOf(*window);
    QCOMPARE(panel->names(), QStringList{u"LINK"_s});
    // Keys of the card that is not shown change; only its own page would be set up anew.
    QVERIFY(showStates(first, R"({"LOS":"present"})",
                       [&first] { return first.commands().count("status alarms") == 2; }));
    QCOMPARE(panel->names(), QStringList{u"LINK"_s});
    enter(u"PCM"_s);
    QCOMPARE(panel->names(), QStringList{u"LOS"_s});
    QCOMPARE(panel->quality(u"LOS"_s), Bad);
    enter(u"Settings"_s);
    QVERIFY(panel->names().isEmpty());
}

void CardPluginsCollectionTest::pressOnTheLedsResetsTheCard() {
    open(u"zr"_s);
    FakeCard card;
    card.setReply("status alarms", "LOS");
    insert(*window, u"e1"_s, 1, card);
    QTest::mouseClick(ledPanelOf(*window), Qt::LeftButton);
    QCOMPARE(card.commands().last(), QByteArray("status alarms reset"));
}

void CardPluginsCollectionTest::cardThatRefusesTheNextPageLeavesNothingBehind() {
    open(u"none"_s);
    FakeCard refusing;
    refusing.setReply("options", "ZR-SIG1");
    insert(*window, u"e1"_s, 1, refusing);
    FakeCard current;
    insert(*window, u"gbe"_s, 1, current);
    refusing.setReply("operation sa", "error busy");
    refusing.setReply("operation pcm", "error busy");
    remove(*window, u"gbe"_s, 1);
    QVERIFY(shown() != "GbE"_L1);
    remove(*window, u"e1"_s, 1);
    QCOMPARE(labels(), QStringList{QString()});
}

void CardPluginsCollectionTest::emptyPageIsShownWhenTheOnlyOtherPageRefuses() {
    open(u"sa"_s);
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    card.setReply("status alarms", "LOS");
    insert(*window, u"e1"_s, 1, card);
    QCOMPARE(shown(), u"PCM"_s);
    card.setReply("operation sa", "error busy");
    remove(*window, u"e1"_s, 1);
    QCOMPARE(shown(), QString());
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
    QCOMPARE(labels(), QStringList{u"Signaling"_s});
    // Without a card the page can be entered again.
    enter(u"Signaling"_s);
    QCOMPARE(shown(), u"Signaling"_s);
}

QTEST_MAIN(CardPluginsCollectionTest)
#include "tst_cardpluginscollection.moc"
