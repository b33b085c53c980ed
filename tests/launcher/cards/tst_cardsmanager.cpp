// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "debuglines.h"
#include "errorstream.h"
#include "insertedcards.h"
#include "plugins/cardpluginscollection.h"
#include "testconfig.h"

#include <warningwindow.h>

#include <checkbutton.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QTextEdit>

#include <limits>

using namespace Qt::Literals::StringLiterals;

/// What the manager makes of the configuration, of the info files that are there at the start, and of announcements.
class CardsManagerTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void everyNameGetsItsPageInTheOrderWritten_data();
    void everyNameGetsItsPageInTheOrderWritten();
    void absentEntryMakesOneNamelessCollectionWithoutAMessage();
    void cardCollectionsBelongToTheManager();
    void cardsThatAreThereComeAfterTheCollectionsInOrderOfName();
    void badInfoFilesAreToldAndPassedOver();
    void missingInfoDirectoryIsTold();
    void unknownTypeIsToldToTheUser_data();
    void unknownTypeIsToldToTheUser();
    void unknownTypeFoundAtTheStartIsToldWhenTheWindowIsThere();
    void insertedCardIsAnnounced();
    void sameCardTwiceIsTwoCards();
    void removalPicksByTypeAndNumber();
    void removalOfNothingIsAnnouncedToo();
    void serialNumberMayBeAnything_data();
    void serialNumberMayBeAnything();
    void cardsThatStayGoWithTheWindow();

private:
    static void putInfoFile(const QString &name, const QByteArray &bytes) {
        const QString directory = qEnvironmentVariable("ZR_SYSROOT") + "/tmp/tester"_L1;
        QVERIFY(QDir().mkpath(directory));
        QFile file(directory + u'/' + name);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray infoOf(const QByteArray &type, const FakeCard &card) {
        return type + '\n' + card.cardiface().toLocal8Bit() + '\n' + card.poller().toLocal8Bit() + '\n';
    }
    static QStringList uniqueNames(const LauncherWindow &window) {
        QStringList names;
        for (const MeasCard *const card : cardsOf(window))
            names.append(card->uniqueName());
        return names;
    }

    static QStringList selectorTexts(const LauncherWindow &window) {
        QStringList texts;
        for (const CheckButton *const button : window.findChildren<CheckButton *>())
            texts.append(button->text());
        texts.sort();
        return texts;
    }

    TestConfig config;
};

void CardsManagerTest::init() {
    config = TestConfig();
    QDir(qEnvironmentVariable("ZR_SYSROOT") + "/tmp"_L1).removeRecursively();
}

void CardsManagerTest::everyNameGetsItsPageInTheOrderWritten_data() {
    QTest::addColumn<QString>("persistent");
    QTest::addColumn<QStringList>("labels");
    QTest::newRow("the instrument's own") << u"zr"_s << QStringList{u"Settings"_s};
    QTest::newRow("the instrument's and a card's") << u"zr e1"_s << QStringList{u"PCM"_s, u"Settings"_s};
    QTest::newRow("unknown name has no label") << u"xyz"_s << QStringList{QString()};
    QTest::newRow("two blanks make a nameless one")
        << u"e1  da"_s << QStringList{QString(), u"Datacom"_s, u"PCM"_s};
    QTest::newRow("repeated name keeps both pages") << u"e1 e1"_s << QStringList{u"PCM"_s, u"PCM"_s};
}

void CardsManagerTest::everyNameGetsItsPageInTheOrderWritten() {
    QFETCH(QString, persistent);
    config.setPersistent(persistent);
    const LauncherWindow window;
    QTEST(selectorTexts(window), "labels");
}

void CardsManagerTest::absentEntryMakesOneNamelessCollectionWithoutAMessage() {
    config.set(u"paths/main"_s, u"reports"_s);
    ErrorStream errors;
    const LauncherWindow window;
    QCOMPARE(selectorTexts(window), QStringList{QString()});
    // The collection itself finds nothing to load; the manager adds no message of its own.
    QCOMPARE(
        errors.take().count("no plugins can be loaded because no proper settings in configuration file."), 1);
}

void CardsManagerTest::cardCollectionsBelongToTheManager() {
    config.setPersistent(u"zr e1"_s);
    const LauncherWindow window;
    QStringList owned;
    for (const PluginsCollection *const collection :
         window.findChild<CardsManager *>()->findChildren<PluginsCollection *>())
        owned.append(collection->name());
    QCOMPARE(owned, QStringList{u"e1"_s});
}

void CardsManagerTest::cardsThatAreThereComeAfterTheCollectionsInOrderOfName() {
    config.setPersistent(u"zr e1"_s);
    FakeCard gbe;
    FakeCard e1;
    FakeCard otdr;
    putInfoFile(u"b.info"_s, infoOf("gbe\n2", gbe));
    putInfoFile(u"A.info"_s, infoOf("e1\n1", e1));
    putInfoFile(u"c.info"_s, infoOf("otdr\n3", otdr));
    const LauncherWindow window;
    QCOMPARE(uniqueNames(window), QStringList({u"e1-1"_s, u"gbe-2"_s, u"otdr-3"_s}));
    QCOMPARE(selectorTexts(window), QStringList({u"GbE"_s, u"OTDR"_s, u"PCM"_s, u"Settings"_s}));
}

void CardsManagerTest::badInfoFilesAreToldAndPassedOver() {
    config.setPersistent(u"zr"_s);
    FakeCard card;
    putInfoFile(u"a.info"_s, "");
    putInfoFile(u"b.info"_s, "e1\n1\nx");
    QVERIFY(QDir(qEnvironmentVariable("ZR_SYSROOT") + "/tmp/tester"_L1).mkdir(u"c.info"_s));
    QVERIFY(QFile::link(u"/nowhere"_s, qEnvironmentVariable("ZR_SYSROOT") + "/tmp/tester/e.info"_L1));
    putInfoFile(u"d.info"_s, infoOf("gbe\n2", card));
    DebugLines debug;
    const LauncherWindow window;
    QCOMPARE(uniqueNames(window), QStringList{u"gbe-2"_s});
    QVERIFY(debug.lines().contains(u"QList(\"\")  is not enough"_s));
    QVERIFY(debug.lines().contains(u"QList(\"e1\", \"1\", \"x\")  is not enough"_s));
    QCOMPARE(debug.lines().filter(u"Can't open file  \""_s).filter(u"/c.info\""_s).size(), 1);
    QCOMPARE(debug.lines().filter(u"Can't open file  \""_s).filter(u"/e.info\""_s).size(), 1);
}

void CardsManagerTest::missingInfoDirectoryIsTold() {
    config.setPersistent(u"zr"_s);
    DebugLines debug;
    const LauncherWindow window;
    QCOMPARE(debug.lines().count(u"Info dir tmp/user doesn't exist"_s), 1);
}

void CardsManagerTest::unknownTypeIsToldToTheUser_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("shown");
    QTest::newRow("unknown") << u"jitter"_s << u"Sorry, card type jitter is unvalid"_s;
    QTest::newRow("other case") << u"E1"_s << u"Sorry, card type E1 is unvalid"_s;
    QTest::newRow("empty") << QString() << u"Sorry, card type  is unvalid"_s;
    QTest::newRow("text that looks like a placeholder") << u"%1"_s << u"Sorry, card type %1 is unvalid"_s;
    QTest::newRow("text that looks like markup")
        << u"<b>e1</b>"_s << u"Sorry, card type <b>e1</b> is unvalid"_s;
    QTest::newRow("64 KiB") << QString(64 * 1024, u'x')
                            << QString("Sorry, card type "_L1 + QString(3983, u'x') + u'…');
}

void CardsManagerTest::unknownTypeIsToldToTheUser() {
    QFETCH(QString, type);
    config.setPersistent(u"zr"_s);
    LauncherWindow window;
    window.show();
    QSignalSpy announced(window.findChild<CardsManager *>(), &CardsManager::cardIsInserted);
    DebugLines debug;
    announce(window, type, 1, u"x"_s, u"y"_s);
    const auto *const warning = window.findChild<WarningWindow *>();
    QVERIFY(warning);
    QVERIFY(warning->isVisible());
    QTEST(warning->findChild<QTextEdit *>()->toPlainText(), "shown");
    QCOMPARE(debug.lines().value(0), u"\"Sorry, card type %1 is unvalid\""_s.arg(type));
    QVERIFY(cardsOf(window).isEmpty());
    QVERIFY(announced.isEmpty());
}

void CardsManagerTest::unknownTypeFoundAtTheStartIsToldWhenTheWindowIsThere() {
    config.setPersistent(u"zr"_s);
    putInfoFile(u"a.info"_s, "\n1\nx\ny\n");
    LauncherWindow window;
    const auto *const warning = window.findChild<WarningWindow *>();
    QVERIFY(warning);
    QVERIFY(!warning->isVisible());
    window.resize(800, 480);
    window.show();
    QTRY_VERIFY(warning->isVisible());
    QCOMPARE(warning->geometry(), window.geometry());
    QCOMPARE(warning->findChild<QTextEdit *>()->toPlainText(), u"Sorry, card type  is unvalid"_s);
}

void CardsManagerTest::insertedCardIsAnnounced() {
    config.setPersistent(u"zr"_s);
    const LauncherWindow window;
    FakeCard card;
    QSignalSpy announced(window.findChild<CardsManager *>(), &CardsManager::cardIsInserted);
    DebugLines debug;
    insert(window, u"e1"_s, 5, card);
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced[0], QVariantList({u"e1"_s, 5, card.cardiface(), card.poller()}));
    QVERIFY(
        debug.lines().contains(u"cardInserted name, sn, cardiface, poller == \"e1\" 5 \"%1\" \"%2\""_s.arg(
            card.cardiface(), card.poller())));
    QCOMPARE(debug.lines().last(), u"new card inserted"_s);
}

void CardsManagerTest::sameCardTwiceIsTwoCards() {
    config.setPersistent(u"zr"_s);
    FakeCard card;
    putInfoFile(u"e1.info"_s, infoOf("e1\n1", card));
    const LauncherWindow window;
    const QPointer<MeasCard> scanned = cardsOf(window).value(0);
    FakeCard again;
    insert(window, u"e1"_s, 1, again);
    QCOMPARE(uniqueNames(window), QStringList({u"e1-1"_s, u"e1-1"_s}));
    remove(window, u"e1"_s, 1);
    QVERIFY(!scanned);
    QCOMPARE(uniqueNames(window), QStringList{u"e1-1"_s});
}

void CardsManagerTest::removalPicksByTypeAndNumber() {
    config.setPersistent(u"zr"_s);
    const LauncherWindow window;
    FakeCard first;
    FakeCard second;
    FakeCard third;
    insert(window, u"e1"_s, 1, first);
    insert(window, u"e1"_s, 2, second);
    insert(window, u"gbe"_s, 2, third);
    remove(window, u"e1"_s, 2);
    QCOMPARE(uniqueNames(window), QStringList({u"e1-1"_s, u"gbe-2"_s}));
}

void CardsManagerTest::removalOfNothingIsAnnouncedToo() {
    config.setPersistent(u"zr"_s);
    const LauncherWindow window;
    QSignalSpy announced(window.findChild<CardsManager *>(), &CardsManager::cardIsRemoved);
    DebugLines debug;
    remove(window, u"e1"_s, 77);
    QCOMPARE(debug.lines(), QStringList{u"no such card: \"e1\" ( 77 )"_s});
    QCOMPARE(announced.size(), 1);
    QCOMPARE(announced[0], QVariantList({u"e1"_s, 77}));
}

void CardsManagerTest::serialNumberMayBeAnything_data() {
    QTest::addColumn<int>("sn");
    QTest::newRow("highest") << std::numeric_limits<int>::max();
    QTest::newRow("lowest") << std::numeric_limits<int>::min();
    QTest::newRow("nought") << 0;
}

void CardsManagerTest::serialNumberMayBeAnything() {
    QFETCH(int, sn);
    config.setPersistent(u"zr"_s);
    const LauncherWindow window;
    FakeCard card;
    insert(window, u"e1"_s, sn, card);
    QCOMPARE(cardsOf(window).value(0)->serial(), sn);
    remove(window, u"e1"_s, sn);
    QVERIFY(cardsOf(window).isEmpty());
}

void CardsManagerTest::cardsThatStayGoWithTheWindow() {
    config.setPersistent(u"zr e1"_s);
    FakeCard e1;
    FakeCard gbe;
    QPointer<MeasCard> bound;
    QPointer<MeasCard> unbound;
    {
        const LauncherWindow window;
        insert(window, u"e1"_s, 1, e1);
        insert(window, u"gbe"_s, 1, gbe);
        bound = cardsOf(window).value(0);
        unbound = cardsOf(window).value(1);
        QVERIFY(bound && unbound);
    }
    QVERIFY(!bound);
    QVERIFY(!unbound);
}

QTEST_MAIN(CardsManagerTest)
#include "tst_cardsmanager.moc"
