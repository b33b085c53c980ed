// SPDX-License-Identifier: GPL-3.0-or-later
#include <cardcontroller.h>
#include <dataproxy.h>

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTest>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// The simulator's cards as a shell and a launcher see them.
class CardCommandTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();

    void cardIsAnnouncedWithFileAndSignal();
    void cardAnswersOverEachWire_data();
    void cardAnswersOverEachWire();
    void alarmReachesTheUpdateLine();
    void sameCardIsNotInsertedTwice();
    void badOrdersAreRefused_data();
    void badOrdersAreRefused();
    void closedLineCanBeOpenedAgain_data() { cardAnswersOverEachWire_data(); }
    void closedLineCanBeOpenedAgain();
    void hangingCardAnswersLate();
    void repliesAreSentAsOrdered_data();
    void repliesAreSentAsOrdered();

public slots:
    void inserted(const QString &name, int sn, const QString &cardiface, const QString &poller) {
        signalsSeen.append(u"inserted %1 %2 %3"_s.arg(name).arg(sn).arg(QFile::exists(infoFile(name, sn))));
        addresses = {cardiface, poller};
    }
    void removed(const QString &name, int sn) { signalsSeen.append(u"removed %1 %2"_s.arg(name).arg(sn)); }

private:
    struct Outcome {
        int status;
        QString output;
    };
    static Outcome run(const QStringList &words) {
        QProcess simulator;
        simulator.setProcessChannelMode(QProcess::MergedChannels);
        simulator.start(QStringLiteral(SIMULATOR), QStringList{u"card"_s} + words);
        simulator.waitForFinished();
        return {simulator.exitCode(), QString::fromUtf8(simulator.readAll()).trimmed()};
    }
    static QString directory() { return qEnvironmentVariable("ZR_SYSROOT") + "/tmp/tester"_L1; }
    static QString infoFile(const QString &name, int sn) {
        return u"%1/%2-%3.info"_s.arg(directory(), name).arg(sn);
    }
    std::unique_ptr<CardController> insert(const QStringList &options) {
        const Outcome outcome = run(QStringList{u"insert"_s, u"e1"_s, u"1"_s} + options);
        if (outcome.status != 0 || !QTest::qWaitFor([this] { return !addresses.isEmpty(); }))
            return nullptr;
        return std::unique_ptr<CardController>(
            CardController::newCard(u"e1"_s, u"1"_s, addresses[0], addresses[1]));
    }

    QStringList signalsSeen;
    QStringList addresses;
};

void CardCommandTest::initTestCase() {
    QDBusConnection bus = QDBusConnection::sessionBus();
    QVERIFY(bus.connect(QString(), u"/"_s, u"zr.card"_s, u"inserted"_s, this,
                        SLOT(inserted(QString, int, QString, QString))));
    QVERIFY(bus.connect(QString(), u"/"_s, u"zr.card"_s, u"removed"_s, this, SLOT(removed(QString, int))));
}

void CardCommandTest::cleanup() {
    for (const QString &card : run({u"list"_s}).output.split(u'\n', Qt::SkipEmptyParts))
        run({u"remove"_s, card});
    signalsSeen.clear();
    addresses.clear();
}

void CardCommandTest::cardIsAnnouncedWithFileAndSignal() {
    QCOMPARE(run({u"insert"_s, u"gbe"_s, u"-7"_s}).status, 0);
    QTRY_COMPARE(signalsSeen, QStringList{u"inserted gbe -7 1"_s});
    QFile file(infoFile(u"gbe"_s, -7));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(QString::fromLatin1(file.readAll()), u"gbe\n-7\n%1\n%2\n"_s.arg(addresses[0], addresses[1]));
    QCOMPARE(run({u"list"_s}).output, u"gbe--7"_s);
    QCOMPARE(run({u"remove"_s, u"gbe--7"_s}).status, 0);
    QTRY_COMPARE(signalsSeen, QStringList({u"inserted gbe -7 1"_s, u"removed gbe -7"_s}));
    QTRY_VERIFY(!QFile::exists(infoFile(u"gbe"_s, -7)));
    QTRY_VERIFY(
        QDir(directory()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).isEmpty());
}

void CardCommandTest::cardAnswersOverEachWire_data() {
    QTest::addColumn<QString>("option");
    QTest::newRow("Unix-domain socket") << QString();
    QTest::newRow("TCP") << u"--tcp"_s;
    QTest::newRow("serial line") << u"--serial"_s;
}

void CardCommandTest::cardAnswersOverEachWire() {
    QFETCH(QString, option);
    const auto controller =
        insert(QStringList{u"--dual"_s} + (option.isEmpty() ? QStringList() : QStringList{option}));
    QVERIFY(controller);
    QVERIFY(controller->doCommand(u"options"_s).contains("ZR-SIG1"_L1));
    QCOMPARE(controller->doCommand(u"operation"_s), u"pcm"_s);
    const DataProxy *const indicators = controller->dataProxy(u"indicators"_s, nullptr);
    QTRY_COMPARE(indicators->data().value(u"LOS"_s).toString(), u"none"_s);
    QCOMPARE(run({u"mode"_s, u"e1-1"_s, u"sa"_s}).status, 0);
    QTRY_VERIFY(indicators->data().contains(u"LOMF"_s));
    QCOMPARE(controller->doCommandGetUpdate(u"status alarms reset"_s), 1);
    QCOMPARE(run({u"commands"_s, u"e1-1"_s}).output, u"options\noperation\nstatus alarms reset"_s);
}

void CardCommandTest::alarmReachesTheUpdateLine() {
    const auto controller = insert({});
    QVERIFY(controller);
    const DataProxy *const indicators = controller->dataProxy(u"indicators"_s, nullptr);
    QCOMPARE(run({u"alarm"_s, u"e1-1"_s, u"LOS"_s, u"present"_s}).status, 0);
    QTRY_COMPARE(indicators->data().value(u"LOS"_s).toString(), u"present"_s);
    QCOMPARE(run({u"alarm"_s, u"e1-1"_s, u"LOS"_s, u"none"_s}).status, 0);
    QTRY_COMPARE(indicators->data().value(u"LOS"_s).toString(), u"history"_s);
    QCOMPARE(run({u"clear"_s, u"e1-1"_s}).status, 0);
    QTRY_COMPARE(indicators->data().value(u"LOS"_s).toString(), u"none"_s);
    QCOMPARE(run({u"storm"_s, u"e1-1"_s, u"500"_s}).status, 0);
    QTRY_VERIFY(indicators->data().values().contains(u"present"_s));
}

void CardCommandTest::sameCardIsNotInsertedTwice() {
    QVERIFY(insert({}));
    const Outcome again = run({u"insert"_s, u"e1"_s, u"1"_s});
    QCOMPARE(again.status, 1);
    QCOMPARE(again.output, u"zr-simulator: e1-1 is inserted already"_s);
}

void CardCommandTest::badOrdersAreRefused_data() {
    QTest::addColumn<QString>("words");
    QTest::addColumn<int>("status");
    QTest::newRow("no order") << QString() << 2;
    QTest::newRow("unknown type") << u"insert e2 1"_s << 2;
    QTest::newRow("no number") << u"insert e1 x"_s << 2;
    QTest::newRow("number that is too large") << u"insert e1 2147483648"_s << 2;
    QTest::newRow("second mode of a card that has none") << u"insert gbe 1 --dual"_s << 2;
    QTest::newRow("unknown option") << u"insert e1 2 --usb"_s << 2;
    QTest::newRow("no such card") << u"hang e1-9"_s << 1;
    QTest::newRow("unknown order") << u"fly e1-1"_s << 1;
    QTest::newRow("unknown alarm") << u"alarm e1-1 XYZ present"_s << 1;
    QTest::newRow("unknown state") << u"alarm e1-1 LOS maybe"_s << 1;
    QTest::newRow("mode that the card has not") << u"mode e1-1 sa"_s << 1;
    QTest::newRow("storm of words") << u"storm e1-1 much"_s << 1;
    QTest::newRow("storm beyond measure") << u"storm e1-1 1001"_s << 1;
    QTest::newRow("babble about something") << u"babble e1-1 nonsense"_s << 1;
    QTest::newRow("unknown manner") << u"reply e1-1 loudly"_s << 1;
}

void CardCommandTest::badOrdersAreRefused() {
    QFETCH(QString, words);
    QVERIFY(insert({}));
    const Outcome outcome = run(words.split(u' ', Qt::SkipEmptyParts));
    QTEST(outcome.status, "status");
    QVERIFY(!outcome.output.isEmpty());
}

void CardCommandTest::closedLineCanBeOpenedAgain() {
    QFETCH(QString, option);
    const auto controller = insert(option.isEmpty() ? QStringList() : QStringList{option});
    QVERIFY(controller);
    QCOMPARE(controller->doCommand(u"operation"_s), u"pcm"_s);
    QCOMPARE(run({u"close"_s, u"e1-1"_s}).status, 0);
    QCOMPARE(controller->doCommand(u"operation"_s), QString());
    QCOMPARE(run({u"open"_s, u"e1-1"_s}).status, 0);
    QTRY_COMPARE(controller->doCommand(u"operation"_s), u"pcm"_s);
    // Opening what is open is no harm.
    QCOMPARE(run({u"open"_s, u"e1-1"_s}).status, 0);
    QTRY_COMPARE(controller->doCommand(u"operation"_s), u"pcm"_s);
}

void CardCommandTest::hangingCardAnswersLate() {
    const auto controller = insert({});
    QVERIFY(controller);
    QCOMPARE(run({u"hang"_s, u"e1-1"_s}).status, 0);
    QCOMPARE(controller->doCommand(u"versions"_s), QString());
    QCOMPARE(run({u"resume"_s, u"e1-1"_s}).status, 0);
    QTRY_COMPARE(controller->doCommand(u"operation"_s), u"pcm"_s);
}

void CardCommandTest::repliesAreSentAsOrdered_data() {
    QTest::addColumn<QString>("manner");
    QTest::addColumn<QString>("reply");
    QTest::newRow("whole") << u"whole"_s << u"3"_s;
    QTest::newRow("single bytes") << u"bytes"_s << u"3"_s;
    QTest::newRow("cut off") << u"cut"_s << QString();
    QTest::newRow("without end") << u"endless"_s << QString();
}

void CardCommandTest::repliesAreSentAsOrdered() {
    QFETCH(QString, manner);
    const auto controller = insert({});
    QVERIFY(controller);
    QCOMPARE(run({u"reply"_s, u"e1-1"_s, manner}).status, 0);
    QTEST(controller->doCommand(u"hwrevision"_s), "reply");
    QCOMPARE(run({u"reply"_s, u"e1-1"_s, u"whole"_s}).status, 0);
    QTRY_COMPARE(controller->doCommand(u"hwrevision"_s), u"3"_s);
}

QTEST_GUILESS_MAIN(CardCommandTest)
#include "tst_cardcommand.moc"
