// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "debuglines.h"
#include "launcherfixture.h"

#include <warningwindow.h>

#include <QProcess>
#include <QSignalSpy>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Signals on a real bus, sent by another process.
class CardsOnTheBusTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void signalsInsertAndRemoveACard();
    void otherSignalsAreNotHeard_data();
    void otherSignalsAreNotHeard();
    void unknownTypeIsToldOverTheBus();
    void longTextsArrive();

private:
    static void send(const QString &path, const QString &member, const QStringList &arguments) {
        QCOMPARE(QProcess::execute(u"dbus-send"_s, QStringList{u"--session"_s, path, member} + arguments), 0);
    }
    static void insert(const QString &name, const QString &sn) {
        send(u"/"_s, u"zr.card.inserted"_s,
             {"string:"_L1 + name, "int32:"_L1 + sn, u"string:unix:/nowhere"_s, u"string:"_s});
    }

    TestConfig config;
    std::unique_ptr<LauncherWindow> window;
    std::unique_ptr<QSignalSpy> inserted;
    std::unique_ptr<QSignalSpy> removed;
};

void CardsOnTheBusTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    config = TestConfig();
    config.setPersistent(u"zr"_s);
    window = std::make_unique<LauncherWindow>();
    window->show();
    auto *const manager = window->findChild<CardsManager *>();
    inserted = std::make_unique<QSignalSpy>(manager, &CardsManager::cardIsInserted);
    removed = std::make_unique<QSignalSpy>(manager, &CardsManager::cardIsRemoved);
}

void CardsOnTheBusTest::signalsInsertAndRemoveACard() {
    insert(u"gbe"_s, u"-2147483648"_s);
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first(),
             QVariantList({u"gbe"_s, std::numeric_limits<int>::min(), u"unix:/nowhere"_s, QString()}));
    send(u"/"_s, u"zr.card.removed"_s, {u"string:gbe"_s, u"int32:-2147483648"_s});
    QTRY_COMPARE(removed->size(), 1);
    QCOMPARE(removed->first(), QVariantList({u"gbe"_s, std::numeric_limits<int>::min()}));
}

void CardsOnTheBusTest::otherSignalsAreNotHeard_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("member");
    QTest::addColumn<QStringList>("arguments");
    const QStringList right{u"string:e1"_s, u"int32:1"_s, u"string:x"_s, u"string:y"_s};
    QTest::newRow("other path") << u"/card"_s << u"zr.card.inserted"_s << right;
    QTest::newRow("other interface") << u"/"_s << u"zr.cards.inserted"_s << right;
    QTest::newRow("other name") << u"/"_s << u"zr.card.plugged"_s << right;
    QTest::newRow("too few arguments") << u"/"_s << u"zr.card.inserted"_s << right.first(2);
    QTest::newRow("number as text") << u"/"_s << u"zr.card.inserted"_s
                                    << QStringList{u"string:e1"_s, u"string:1"_s, u"string:x"_s,
                                                   u"string:y"_s};
    QTest::newRow("unsigned number") << u"/"_s << u"zr.card.inserted"_s
                                     << QStringList{u"string:e1"_s, u"uint32:1"_s, u"string:x"_s,
                                                    u"string:y"_s};
    QTest::newRow("table instead of text")
        << u"/"_s << u"zr.card.inserted"_s
        << QStringList{u"dict:string:int32:a,1"_s, u"int32:1"_s, u"string:x"_s, u"string:y"_s};
    QTest::newRow("table instead of a number")
        << u"/"_s << u"zr.card.inserted"_s
        << QStringList{u"string:e1"_s, u"dict:string:int32:a,1"_s, u"string:x"_s, u"string:y"_s};
    QTest::newRow("one argument too many")
        << u"/"_s << u"zr.card.inserted"_s << right + QStringList{u"string:z"_s};
    QTest::newRow("removal of a table")
        << u"/"_s << u"zr.card.removed"_s << QStringList{u"dict:string:int32:a,1"_s, u"int32:1"_s};
    QTest::newRow("removal without a number")
        << u"/"_s << u"zr.card.removed"_s << QStringList{u"string:e1"_s};
    QTest::newRow("no arguments") << u"/"_s << u"zr.card.inserted"_s << QStringList();
}

void CardsOnTheBusTest::otherSignalsAreNotHeard() {
    QFETCH(QString, path);
    QFETCH(QString, member);
    QFETCH(QStringList, arguments);
    send(path, member, arguments);
    // Signals keep their order: when this one is there, the other one has been passed over.
    insert(u"gbe"_s, u"2"_s);
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first().first().toString(), u"gbe"_s);
    QCOMPARE(removed->size(), 0);
}

void CardsOnTheBusTest::unknownTypeIsToldOverTheBus() {
    insert(u"e2"_s, u"1"_s);
    QTRY_VERIFY(window->findChild<WarningWindow *>());
    QVERIFY(window->findChild<WarningWindow *>()->isVisible());
    QVERIFY(inserted->isEmpty());
}

void CardsOnTheBusTest::longTextsArrive() {
    const QString longText(64 * 1024, u'x');
    send(u"/"_s, u"zr.card.inserted"_s,
         {u"string:e1"_s, u"int32:1"_s, "string:"_L1 + longText, "string:"_L1 + longText});
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first()[2].toString(), longText);
}

QTEST_MAIN(CardsOnTheBusTest)
#include "tst_cardsonthebus.moc"
