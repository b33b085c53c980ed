// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/meascard.h"

#include "insertedcards.h"
#include "launcherfixture.h"
#include "plugins/cardpluginscollection.h"

#include <cardcontroller.h>
#include <dataproxy.h>
#include <warningwindow.h>

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTextEdit>
#include <QTimer>

#include <memory>
#include <thread>

using namespace Qt::Literals::StringLiterals;

/// One card on a real line, in a real window.
class MeasCardTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void commandsAreSentInTheirOrder_data();
    void commandsAreSentInTheirOrder();
    void optionLineMakesTheCardDualMode_data();
    void optionLineMakesTheCardDualMode();
    void collectionsStandInTheOrderOfTheModes_data();
    void collectionsStandInTheOrderOfTheModes();
    void modeIsSwitchedOnThePageAndNotTwice();
    void singleModeCardIsNeverSwitched();
    void refusedModeRefusesThePage();
    void sameKeysOnlyUpdateNewKeysSetUpFirst();
    void namesThatCouldNotBeReadAreAskedForAgain();
    void slowCardIsNotAskedWithEveryUpdate();
    void promptTellsNamesTwiceAtFirst();
    void ledsReachThePanel();
    void resetIsSentAndItsUpdateShown();
    void controllerErrorsAreShown();
    void whatIsUnreadWhenTheCardGoesStaysToBeRead();
    void deadCardsLeaveOneWindowHoweverManyThereAre();
    void windowAnswersWhileTheCardBabblesAndStorms();
    void cardThatDiesInACommandIsRemovedOrderly();
    void identityIsKept();

private:
    MeasCard *insertCard(const FakeCard &card) {
        insert(*window, u"e1"_s, 1234, card);
        return cardsOf(*window).value(0);
    }
    static QStringList namesOf(const QList<CardPluginsCollection *> &collections) {
        QStringList names;
        for (const CardPluginsCollection *const collection : collections)
            names.append(collection->name());
        return names;
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
};

void MeasCardTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
    config.setPersistent(u"zr"_s);
    window = std::make_unique<LauncherWindow>();
    window->show();
}

void MeasCardTest::commandsAreSentInTheirOrder_data() {
    using Commands = QList<QByteArray>;
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<Commands>("commands");
    QTest::newRow("single mode") << QByteArray("G703") << QByteArray()
                                 << Commands{"options", "hwrevision", "versions", "status alarms",
                                             "parameters"};
    // Entering the page of each new collection switches the card there.
    QTest::newRow("dual mode, running pcm")
        << QByteArray("ZR-SIG1") << QByteArray("pcm")
        << Commands{"options",      "hwrevision",    "versions",      "operation",
                    "operation sa", "parameters",    "status alarms", "operation pcm",
                    "parameters",   "status alarms", "parameters"};
    QTest::newRow("dual mode, running sa")
        << QByteArray("ZR-SIG1") << QByteArray("sa")
        << Commands{"options",      "hwrevision", "versions",      "operation", "status alarms",
                    "operation sa", "parameters", "status alarms", "parameters"};
}

void MeasCardTest::commandsAreSentInTheirOrder() {
    QFETCH(QByteArray, options);
    QFETCH(QByteArray, operation);
    FakeCard card;
    card.setReply("options", options);
    card.setReply("operation", operation);
    insertCard(card);
    QTEST(card.commands(), "commands");
}

void MeasCardTest::optionLineMakesTheCardDualMode_data() {
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<bool>("isDualMode");
    QTest::newRow("line of its own") << QByteArray("G703\nZR-SIG1\nX") << true;
    QTest::newRow("other case") << QByteArray("zr-sig1") << false;
    QTest::newRow("other text behind it") << QByteArray("ZR-SIG1 yes") << false;
    QTest::newRow("blank behind it") << QByteArray("ZR-SIG1 ") << false;
    QTest::newRow("other text before it") << QByteArray("has ZR-SIG1") << false;
    QTest::newRow("longer name") << QByteArray("ZR-SIG10") << false;
    QTest::newRow("no options") << QByteArray() << false;
}

void MeasCardTest::optionLineMakesTheCardDualMode() {
    QFETCH(QByteArray, options);
    QFETCH(bool, isDualMode);
    FakeCard card;
    card.setReply("options", options);
    const MeasCard *const measCard = insertCard(card);
    QCOMPARE(measCard->collections().size(), isDualMode ? 2 : 1);
    QCOMPARE(card.commands().contains("operation"), isDualMode);
}

void MeasCardTest::collectionsStandInTheOrderOfTheModes_data() {
    QTest::addColumn<QByteArray>("operation");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("sa") << QByteArray("sa") << QStringList{u"e1"_s, u"sa"_s};
    QTest::newRow("sa somewhere in the reply") << QByteArray("mode\nnasal") << QStringList{u"e1"_s, u"sa"_s};
    QTest::newRow("pcm") << QByteArray("pcm") << QStringList{u"sa"_s, u"e1"_s};
    QTest::newRow("other case") << QByteArray("SA") << QStringList{u"sa"_s, u"e1"_s};
    QTest::newRow("no reply") << QByteArray() << QStringList{u"sa"_s, u"e1"_s};
}

void MeasCardTest::collectionsStandInTheOrderOfTheModes() {
    QFETCH(QByteArray, operation);
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    card.setReply("operation", operation);
    QTEST(namesOf(insertCard(card)->collections()), "names");
}

void MeasCardTest::modeIsSwitchedOnThePageAndNotTwice() {
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    card.setReply("operation", "pcm");
    MeasCard *const measCard = insertCard(card);
    const qsizetype before = card.commands().size();
    QVERIFY(measCard->changeMode(u"e1"_s));
    QCOMPARE(card.commands().size(), before);
    QVERIFY(measCard->changeMode(u"sa"_s));
    QVERIFY(measCard->changeMode(u"sa"_s));
    QVERIFY(measCard->changeMode(u"e1"_s));
    QCOMPARE(card.commands().mid(before),
             QList<QByteArray>({"operation sa", "parameters", "operation pcm", "parameters"}));
    QVERIFY(measCard->changeMode(u"anything else"_s));
    QCOMPARE(card.commands().last(2), QList<QByteArray>({"operation sa", "parameters"}));
}

void MeasCardTest::singleModeCardIsNeverSwitched() {
    FakeCard card;
    MeasCard *const measCard = insertCard(card);
    const qsizetype before = card.commands().size();
    QVERIFY(measCard->changeMode(u"sa"_s));
    QVERIFY(measCard->changeMode(u"e1"_s));
    QCOMPARE(card.commands().size(), before);
}

void MeasCardTest::refusedModeRefusesThePage() {
    FakeCard card;
    card.setReply("options", "ZR-SIG1");
    card.setReply("operation", "pcm");
    MeasCard *const measCard = insertCard(card);
    card.setReply("operation sa", "error line is busy");
    const qsizetype before = card.commands().size();
    QVERIFY(!measCard->changeMode(u"sa"_s));
    QCOMPARE(card.commands().mid(before), QList<QByteArray>{"operation sa"});
    // Still in the old mode: nothing to switch.
    QVERIFY(measCard->changeMode(u"e1"_s));
    QCOMPARE(card.commands().size(), before + 1);
}

void MeasCardTest::sameKeysOnlyUpdateNewKeysSetUpFirst() {
    FakeCard card;
    card.setReply("status alarms", "LOS none\nAIS none");
    MeasCard *const measCard = insertCard(card);
    QStringList signalNames;
    connect(measCard, &MeasCard::setupLeds, this,
            [&](const QStringList &names) { signalNames.append("setup "_L1 + names.join(u',')); });
    connect(measCard, &MeasCard::updateLeds, this, [&](const QList<QPair<QString, QString>> &data) {
        QString text = u"update"_s;
        for (const auto &[key, state] : data)
            text += u' ' + key + u'=' + state;
        signalNames.append(text);
    });
    const auto redraw = [measCard](QVariantMap data) {
        QMetaObject::invokeMethod(measCard, "redrawLeds", Q_ARG(QVariantMap &, data));
    };
    redraw({{u"LOS"_s, u"none"_s}, {u"AIS"_s, u"none"_s}});
    redraw({{u"LOS"_s, u"present"_s}, {u"AIS"_s, u"none"_s}});
    redraw({{u"LOS"_s, u"present"_s}});
    QCOMPARE(signalNames,
             QStringList({u"setup LOS,AIS"_s, u"update AIS=none LOS=none"_s, u"update AIS=none LOS=present"_s,
                          u"setup LOS,AIS"_s, u"update LOS=present"_s}));
}

void MeasCardTest::namesThatCouldNotBeReadAreAskedForAgain() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    MeasCard *const measCard = insertCard(card);
    card.setRawReply("status alarms", "LO");
    card.hangUpAfterReply();
    QVariantMap data{{u"LOS"_s, u"none"_s}};
    QMetaObject::invokeMethod(measCard, "redrawLeds", Q_ARG(QVariantMap &, data));
    QVERIFY(ledPanelOf(*window)->names().isEmpty());
    // Entering the page asks at once, whatever happened before.
    card.setReply("status alarms", "LOS");
    measCard->promptRedrawLeds();
    QCOMPARE(ledPanelOf(*window)->names(), QStringList{u"LOS"_s});
}

void MeasCardTest::slowCardIsNotAskedWithEveryUpdate() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    MeasCard *const measCard = insertCard(card);
    const qsizetype before = card.commands().count("status alarms");
    card.hold();
    std::thread releasing([&card, before] {
        while (card.commands().count("status alarms") == before)
            QThread::yieldCurrentThread();
        // Not waited for anything: this is how long the card takes, three times what counts as quick.
        QThread::msleep(300);
        card.release();
    });
    for (int i = 0; i < 100; ++i) {
        QVariantMap data{{u"key %1"_s.arg(i % 2), u"none"_s}};
        QMetaObject::invokeMethod(measCard, "redrawLeds", Q_ARG(QVariantMap &, data));
    }
    releasing.join();
    QCOMPARE(card.commands().count("status alarms"), before + 1);
}

void MeasCardTest::promptTellsNamesTwiceAtFirst() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    MeasCard *const measCard = insertCard(card);
    const DataProxy *const proxy =
        CardController::card(u"e1"_s, u"1234"_s)->dataProxy(u"indicators"_s, nullptr);
    // The signals must not be told before the prompt, so the card's own slot is cut off meanwhile.
    QObject::disconnect(proxy, nullptr, measCard, nullptr);
    QVERIFY(showStates(card, R"({"LOS":"present"})", [&] { return !proxy->data().isEmpty(); }));
    QSignalSpy setups(measCard, &MeasCard::setupLeds);
    int updates = 0;
    connect(measCard, &MeasCard::updateLeds, this, [&updates] { ++updates; });
    measCard->promptRedrawLeds();
    QCOMPARE(setups.size(), 2);
    QCOMPARE(updates, 1);
    measCard->promptRedrawLeds();
    QCOMPARE(setups.size(), 3);
    QCOMPARE(updates, 2);
}

void MeasCardTest::ledsReachThePanel() {
    FakeCard card;
    card.setReply("status alarms", "LOS none\n\nAIS none\n");
    insertCard(card);
    LedPanel *const panel = ledPanelOf(*window);
    QCOMPARE(panel->names(), QStringList({u"LOS"_s, u"AIS"_s}));
    QVERIFY(showStates(card, R"({"LOS":"present","AIS":"history"})",
                       [panel] { return panel->quality(u"LOS"_s) == Bad; }));
    QCOMPARE(panel->quality(u"AIS"_s), Warning);
    card.closeUpdates();
    QTRY_COMPARE(panel->quality(u"LOS"_s), NotMeasured);
}

void MeasCardTest::resetIsSentAndItsUpdateShown() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    MeasCard *const measCard = insertCard(card);
    LedPanel *const panel = ledPanelOf(*window);
    QVERIFY(
        showStates(card, R"({"LOS":"history"})", [panel] { return panel->quality(u"LOS"_s) == Warning; }));
    card.setUpdateAfter("status alarms reset", "{\"indicators\":{\"LOS\":\"none\"}}\n");
    measCard->resetLeds();
    QCOMPARE(card.commands().last(), QByteArray("status alarms reset"));
    QTRY_COMPARE(panel->quality(u"LOS"_s), Good);
}

void MeasCardTest::controllerErrorsAreShown() {
    FakeCard card;
    card.close();
    MeasCard *const measCard = insertCard(card);
    QVERIFY(measCard);
    QTRY_VERIFY(measCard->warning()->isVisible());
    const QString text = measCard->warning()->findChild<QTextEdit *>()->toPlainText();
    QVERIFY2(text.startsWith("The card cannot be reached: "_L1), qPrintable(text));
    QVERIFY2(text.contains("\nCard e1, number 1234, command \"options\""_L1), qPrintable(text));
    QCOMPARE(measCard->warning()->parentWidget(), window.get());
    QCOMPARE(measCard->collections().size(), 1);
}

void MeasCardTest::whatIsUnreadWhenTheCardGoesStaysToBeRead() {
    FakeCard card;
    card.close();
    const QPointer<WarningWindow> ofTheCard = insertCard(card)->warning();
    QTRY_VERIFY(ofTheCard->isVisible());
    remove(*window, u"e1"_s, 1234);
    QTRY_VERIFY(!ofTheCard);
    auto *const warning = window->findChild<CardsManager *>()->warning();
    QVERIFY(warning->isVisible());
    QVERIFY(warning->findChild<QTextEdit *>()->toPlainText().contains("number 1234"_L1));
    warning->accept();
    QVERIFY(!warning->isVisible());
}

void MeasCardTest::deadCardsLeaveOneWindowHoweverManyThereAre() {
    FakeCard card;
    card.close();
    for (int sn = 1; sn <= 60; ++sn) {
        insert(*window, u"e1"_s, sn, card);
        QCoreApplication::processEvents();
        remove(*window, u"e1"_s, sn);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(window->findChildren<WarningWindow *>().size(), 1);
}

void MeasCardTest::cardThatDiesInACommandIsRemovedOrderly() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    MeasCard *const measCard = insertCard(card);
    // The card goes while the command waits; its removal is told from the event loop afterwards.
    card.setRawReply("status alarms", "LO");
    card.hangUpAfterReply();
    QMetaObject::invokeMethod(
        this, [this] { remove(*window, u"e1"_s, 1234); }, Qt::QueuedConnection);
    QCOMPARE(measCard->readLedsNames(), QStringList());
    QTRY_VERIFY(cardsOf(*window).isEmpty());
}

void MeasCardTest::windowAnswersWhileTheCardBabblesAndStorms() {
    FakeCard card;
    card.setReply("status alarms", "LOS");
    card.setReply("options", "COMMAND-TIMEOUT=10000");
    insertCard(card);
    LedPanel *const panel = ledPanelOf(*window);
    QVERIFY(showStates(card, R"({"LOS":"none"})", [panel] { return panel->quality(u"LOS"_s) == Good; }));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"nobody asked for"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"no update"_s));
    card.sendUnasked(QByteArray(300'000, '?'));
    card.sendUpdate(QByteArray(300'000, '?') + '\n' +
                    QByteArray("{\"indicators\":{\"LOS\":\"history\"}}\n").repeated(2000) +
                    "{\"indicators\":{\"LOS\":\"present\"}}\n");
    QElapsedTimer timer;
    qint64 longestPause = 0;
    QTimer heartbeat;
    connect(&heartbeat, &QTimer::timeout, this, [&] { longestPause = qMax(longestPause, timer.restart()); });
    heartbeat.start(1);
    timer.start();
    QTRY_COMPARE_WITH_TIMEOUT(panel->quality(u"LOS"_s), Bad, 30'000);
    // Far more than it takes, so that a busy machine does not matter; a nested wait would be ten seconds.
    QVERIFY2(longestPause < 4000, qPrintable(QString::number(longestPause)));
}

void MeasCardTest::identityIsKept() {
    FakeCard card;
    const MeasCard *const measCard = insertCard(card);
    QCOMPARE(measCard->name(), u"e1"_s);
    QCOMPARE(measCard->serial(), 1234);
    QCOMPARE(measCard->uniqueName(), u"e1-1234"_s);
    QCOMPARE(measCard->parent(), window->findChild<CardsManager *>());
    QVERIFY(CardController::card(u"e1"_s, u"1234"_s));
}

QTEST_MAIN(MeasCardTest)
#include "tst_meascard.moc"
