// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/simulatedcard.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SimulatedCardTest : public QObject {
    Q_OBJECT

private slots:
    void everyTypeAnswersTheLaunchersCommands_data();
    void everyTypeAnswersTheLaunchersCommands();
    void dualModeCardSaysSoAndSwitches();
    void singleModeCardRefusesTheOtherMode();
    void unknownCommandIsRefused();
    void alarmThatGoesStaysInTheHistoryUntilAReset();
    void alarmsOfTheModeAreListedAndUpdated();
    void unknownTypeIsNoCard();

private:
    static SimulatedCard e1(bool isDualMode) { return {*cardType(u"e1"_s), isDualMode}; }
};

void SimulatedCardTest::everyTypeAnswersTheLaunchersCommands_data() {
    QTest::addColumn<QString>("type");
    for (const char *const type : {"e1", "da", "otdr", "gbe"})
        QTest::newRow(type) << QString::fromLatin1(type);
}

void SimulatedCardTest::everyTypeAnswersTheLaunchersCommands() {
    QFETCH(QString, type);
    SimulatedCard card(*cardType(type), false);
    const QStringList commands{u"options"_s,    u"hwrevision"_s, u"versions"_s,
                               u"parameters"_s, u"operation"_s,  u"status alarms"_s};
    for (const QString &command : commands) {
        const QString reply = card.reply(command);
        QVERIFY2(!reply.isEmpty() && !reply.startsWith("error"_L1), qPrintable(command));
    }
    QCOMPARE(card.reply(u"status alarms reset"_s), QString());
    QCOMPARE(card.commands(), commands + QStringList{u"status alarms reset"_s});
}

void SimulatedCardTest::dualModeCardSaysSoAndSwitches() {
    SimulatedCard card = e1(true);
    QVERIFY(card.reply(u"options"_s).split(u'\n').contains("ZR-SIG1"_L1));
    QCOMPARE(card.reply(u"operation"_s), u"pcm"_s);
    QCOMPARE(card.reply(u"operation sa"_s), QString());
    QCOMPARE(card.reply(u"operation"_s), u"sa"_s);
    QCOMPARE(card.reply(u"operation pcm"_s), QString());
    QCOMPARE(card.reply(u"operation"_s), u"pcm"_s);
    QCOMPARE(card.reply(u"operation other"_s), u"error unknown mode"_s);
}

void SimulatedCardTest::singleModeCardRefusesTheOtherMode() {
    SimulatedCard card = e1(false);
    QVERIFY(!card.reply(u"options"_s).contains("ZR-SIG1"_L1));
    QCOMPARE(card.reply(u"operation sa"_s), u"error no second mode"_s);
    QCOMPARE(card.reply(u"operation pcm"_s), QString());
}

void SimulatedCardTest::unknownCommandIsRefused() {
    SimulatedCard card = e1(false);
    QCOMPARE(card.reply(u"dance"_s), u"error unknown command"_s);
    QCOMPARE(card.reply(QString()), u"error unknown command"_s);
    QCOMPARE(card.reply(u"repeat 17"_s), u"17"_s);
}

void SimulatedCardTest::alarmThatGoesStaysInTheHistoryUntilAReset() {
    SimulatedCard card = e1(false);
    QVERIFY(card.setAlarm(u"LOS"_s, true));
    QVERIFY(card.reply(u"status alarms"_s).contains("LOS present"_L1));
    card.reply(u"status alarms reset"_s);
    QVERIFY(card.reply(u"status alarms"_s).contains("LOS present"_L1));
    QVERIFY(card.setAlarm(u"LOS"_s, false));
    QVERIFY(card.reply(u"status alarms"_s).contains("LOS history"_L1));
    card.reply(u"status alarms reset"_s);
    QVERIFY(card.reply(u"status alarms"_s).contains("LOS none"_L1));
    QVERIFY(!card.setAlarm(u"NOSUCH"_s, true));
}

void SimulatedCardTest::alarmsOfTheModeAreListedAndUpdated() {
    SimulatedCard card = e1(true);
    QVERIFY(card.alarmNames().contains("BPV"_L1));
    QVERIFY(card.setMode(SimulatedCard::Signalling));
    QVERIFY(card.alarmNames().contains("LOMF"_L1));
    QCOMPARE(
        card.update(),
        QByteArray(
            R"({"indicators":{"AIS":"none","LOF":"none","LOMF":"none","LOS":"none","MRAI":"none","RAI":"none"}})"));
}

void SimulatedCardTest::unknownTypeIsNoCard() {
    QVERIFY(!cardType(u"E1"_s));
    QVERIFY(!cardType(QString()));
}

QTEST_GUILESS_MAIN(SimulatedCardTest)
#include "tst_simulatedcard.moc"
