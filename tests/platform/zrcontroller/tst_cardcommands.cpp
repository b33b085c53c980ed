// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcontroller.h"

#include "controllercommand.h"
#include "fakecard.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Commands to a card over each kind of line, and what becomes of those that go wrong.
class CardCommandsTest : public QObject {
    Q_OBJECT

private slots:
    void commandGetsItsReply_data() { addWires(); }
    void commandGetsItsReply();
    void resultTellsWhetherTheCardObeyed_data();
    void resultTellsWhetherTheCardObeyed();
    void replyMayComeInSingleBytes_data() { addWires(); }
    void replyMayComeInSingleBytes();
    void lateReplyIsNotTakenForTheNextCommands_data() { addWires(); }
    void lateReplyIsNotTakenForTheNextCommands();
    void deadCardCostsOneTimeLimit_data() { addWires(); }
    void deadCardCostsOneTimeLimit();
    void refusedConnectionIsTold();
    void cardThatHangsUpInTheMiddleIsToldAndCalledAgain();
    void replyWithoutEndIsTold_data() { addWires(); }
    void replyWithoutEndIsTold();
    void unaskedBytesAreNoReply_data() { addWires(); }
    void unaskedBytesAreNoReply();
    void commandOfTwoLinesIsNotSent();
    void badAddressIsTold();
    void statedTimeLimitHolds();
    void quietCommandTellsNobody();
    void sameMessageIsNotRepeated();
    void nothingIsSentToACardLetGoOf();

private:
    using Controller = std::unique_ptr<CardController>;

    static void addWires() {
        QTest::addColumn<int>("wire");
        QTest::newRow("Unix-domain socket") << int(FakeCard::Unix);
        QTest::newRow("TCP") << int(FakeCard::Tcp);
        QTest::newRow("serial line") << int(FakeCard::Serial);
    }

    static Controller open(const FakeCard &card) {
        return Controller(CardController::newCard(u"e1"_s, u"1"_s, card.cardiface(), QString()));
    }

    /// Makes the time limit of all further commands the shortest one.
    static void hurry(FakeCard &card, CardController &controller) {
        card.setReply("options", "COMMAND-TIMEOUT=100");
        controller.doCommand(u"options"_s);
    }
    /// A card that owes a reply is left alone for a moment, and one that has little time may not answer in it.
    static QString firstReply(CardController &controller, const QString &command) {
        QString reply;
        const auto isAnswered = [&] { return !(reply = controller.doCommand(command)).isEmpty(); };
        return QTest::qWaitFor(isAnswered, 30'000) ? reply : QString();
    }
};

void CardCommandsTest::commandGetsItsReply() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.setReply("options", "G703\n..hidden");
    card.setReply("versions", "1");
    const Controller controller = open(card);
    QCOMPARE(controller->doCommand(u"options"_s), u"G703\n.hidden"_s);
    QCOMPARE(controller->doCommand(u"versions"_s), u"1"_s);
    QCOMPARE(controller->doCommand(u"parameters"_s), QString());
    QCOMPARE(card.commands(), QList<QByteArray>({"options", "versions", "parameters"}));
}

void CardCommandsTest::resultTellsWhetherTheCardObeyed_data() {
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<int>("result");
    QTest::newRow("empty reply") << QByteArray() << 1;
    QTest::newRow("text") << QByteArray("done") << 1;
    QTest::newRow("error") << QByteArray("error") << 0;
    QTest::newRow("error with a reason") << QByteArray("error no such mode") << 0;
    QTest::newRow("error with lines") << QByteArray("error\nmore") << 0;
    QTest::newRow("word that begins so") << QByteArray("errors 0") << 1;
    QTest::newRow("error further on") << QByteArray("ok\nerror") << 1;
}

void CardCommandsTest::resultTellsWhetherTheCardObeyed() {
    QFETCH(QByteArray, reply);
    FakeCard card;
    card.setReply("operation sa", reply);
    const Controller controller = open(card);
    ControllerCommand command(u"operation sa"_s, false);
    QTEST(controller->doCommand(command), "result");
    QCOMPARE(command.reply(), QString::fromUtf8(reply));
}

void CardCommandsTest::replyMayComeInSingleBytes() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.setSingleBytes(true);
    card.setReply("options", "one\ntwo");
    QCOMPARE(open(card)->doCommand(u"options"_s), u"one\ntwo"_s);
}

void CardCommandsTest::lateReplyIsNotTakenForTheNextCommands() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    const Controller controller = open(card);
    hurry(card, *controller);
    card.setReply("versions", "late");
    card.setReply("parameters", "right");
    card.hold();
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    QCOMPARE(controller->doCommand(u"versions"_s), QString());
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors[0][0].toString(), u"The card did not answer in time."_s);
    QCOMPARE(errors[0][1].toString(), u"Card e1, number 1, command \"versions\""_s);
    card.release();
    QCOMPARE(firstReply(*controller, u"parameters"_s), u"right"_s);
    QCOMPARE(firstReply(*controller, u"versions"_s), u"late"_s);
}

void CardCommandsTest::deadCardCostsOneTimeLimit() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.hold();
    const Controller controller = open(card);
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(controller->doCommand(u"options"_s), QString());
    QVERIFY2(timer.elapsed() >= 2000, qPrintable(QString::number(timer.elapsed())));
    // A hundred more would take more than three minutes; two more are too many as well.
    for (int i = 0; i < 100; ++i)
        controller->doCommand(u"status alarms"_s);
    QVERIFY2(timer.elapsed() < 5500, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(card.commands(), QList<QByteArray>{"options"});
}

void CardCommandsTest::refusedConnectionIsTold() {
    FakeCard card;
    card.close();
    const Controller controller = open(card);
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    QCOMPARE(controller->doCommand(u"options"_s), QString());
    QCOMPARE(errors.size(), 0);
    QTRY_COMPARE(errors.size(), 1);
    QVERIFY2(errors[0][0].toString().startsWith("The card cannot be reached: "_L1),
             qPrintable(errors[0][0].toString()));
}

void CardCommandsTest::cardThatHangsUpInTheMiddleIsToldAndCalledAgain() {
    FakeCard card;
    card.setRawReply("versions", "1.0\n1.");
    card.setReply("options", "G703");
    const Controller controller = open(card);
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    card.hangUpAfterReply();
    QCOMPARE(controller->doCommand(u"versions"_s), QString());
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors[0][0].toString(), u"The card closed the line."_s);
    QCOMPARE(controller->doCommand(u"options"_s), u"G703"_s);
    QCOMPARE(card.calls(), 2);
}

void CardCommandsTest::replyWithoutEndIsTold() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.setRawReply("versions", QByteArray(1200 * 1024, 'x') + "\nrest\n.\n");
    card.setReply("options", "G703");
    const Controller controller = open(card);
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    QCOMPARE(controller->doCommand(u"versions"_s), QString());
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors[0][0].toString(), u"The card's reply has no end."_s);
    QTRY_COMPARE(controller->doCommand(u"options"_s), u"G703"_s);
}

void CardCommandsTest::unaskedBytesAreNoReply() {
    QFETCH(int, wire);
    FakeCard card{FakeCard::Wire(wire)};
    card.setReply("versions", "1.0");
    const Controller controller = open(card);
    QCOMPARE(controller->doCommand(u"versions"_s), u"1.0"_s);
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"sends what nobody asked for"_s));
    card.sendUnasked("wrong\n.\n");
    QTRY_COMPARE(controller->doCommand(u"versions"_s), u"1.0"_s);
}

void CardCommandsTest::commandOfTwoLinesIsNotSent() {
    FakeCard card;
    const Controller controller = open(card);
    QCOMPARE(controller->doCommand(u"versions\noptions"_s), QString());
    ControllerCommand empty(QString(), false);
    QCOMPARE(controller->doCommand(empty), -1);
    controller->doCommand(u"parameters"_s);
    QCOMPARE(card.commands(), QList<QByteArray>{"parameters"});
}

void CardCommandsTest::badAddressIsTold() {
    const Controller controller(CardController::newCard(u"e1"_s, u"1"_s, u"somewhere"_s, QString()));
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    QCOMPARE(controller->doCommand(u"options"_s), QString());
    QTRY_COMPARE(errors.size(), 1);
    QCOMPARE(errors[0][0].toString(), u"\"somewhere\" is not the address of a card."_s);
}

void CardCommandsTest::statedTimeLimitHolds() {
    FakeCard card;
    const Controller controller = open(card);
    // Longer than the usual one, so that a busy machine does not matter.
    card.setReply("options", "COMMAND-TIMEOUT=3000");
    controller->doCommand(u"options"_s);
    card.hold();
    QElapsedTimer timer;
    timer.start();
    controller->doCommand(u"versions"_s);
    // Three of it would be too much, and so would be the most that a card may ask for.
    QVERIFY2(timer.elapsed() >= 3000 && timer.elapsed() < 8000, qPrintable(QString::number(timer.elapsed())));
}

void CardCommandsTest::quietCommandTellsNobody() {
    FakeCard card;
    card.close();
    const Controller controller = open(card);
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    ControllerCommand quiet(u"versions"_s, true);
    QCOMPARE(controller->doCommand(quiet), -1);
    // The loud one's message comes from the event loop; a message of the quiet one would have come before it.
    controller->doCommand(u"options"_s);
    QTRY_COMPARE(errors.size(), 1);
    QVERIFY(errors[0][1].toString().contains("options"_L1));
}

void CardCommandsTest::sameMessageIsNotRepeated() {
    FakeCard card;
    card.close();
    const Controller controller = open(card);
    QSignalSpy errors(controller.get(), &CardController::showErrorMessage);
    for (int i = 0; i < 20; ++i)
        controller->doCommand(u"options"_s);
    controller->doCommand(u"a\nb"_s);
    QTRY_COMPARE(errors.size(), 2);
    QCOMPARE(errors[1][0].toString(), u"A command is one line."_s);
}

void CardCommandsTest::nothingIsSentToACardLetGoOf() {
    FakeCard card;
    const Controller controller = open(card);
    controller->doCommand(u"options"_s);
    controller->freeCard();
    QCOMPARE(controller->doCommand(u"versions"_s), QString());
    ControllerCommand command(u"versions"_s, false);
    QCOMPARE(controller->doCommand(command), -1);
    QCOMPARE(card.commands(), QList<QByteArray>{"options"});
}

QTEST_GUILESS_MAIN(CardCommandsTest)
#include "tst_cardcommands.moc"
