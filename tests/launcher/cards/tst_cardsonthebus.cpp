// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardsmanager.h"

#include "bussender.h"
#include "launcherfixture.h"
#include "sessionbus.h"

#include <warningwindow.h>

#include <QSignalSpy>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// Signals on a real bus, sent by another of its connections.
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
    void send(const QString &name, const QVariantList &arguments) const {
        QVERIFY(sender.send(u"/"_s, u"zr.card"_s, name, arguments));
    }
    void insert(const QString &type, int sn) const {
        send(u"inserted"_s, {type, sn, u"unix:/nowhere"_s, QString()});
    }

    const BusSender sender;
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
    QTRY_VERIFY(SessionBus::instance()->connection().isConnected());
    inserted = std::make_unique<QSignalSpy>(manager, &CardsManager::cardIsInserted);
    removed = std::make_unique<QSignalSpy>(manager, &CardsManager::cardIsRemoved);
}

void CardsOnTheBusTest::signalsInsertAndRemoveACard() {
    insert(u"gbe"_s, std::numeric_limits<int>::min());
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first(),
             QVariantList({u"gbe"_s, std::numeric_limits<int>::min(), u"unix:/nowhere"_s, QString()}));
    send(u"removed"_s, {u"gbe"_s, std::numeric_limits<int>::min()});
    QTRY_COMPARE(removed->size(), 1);
    QCOMPARE(removed->first(), QVariantList({u"gbe"_s, std::numeric_limits<int>::min()}));
}

void CardsOnTheBusTest::otherSignalsAreNotHeard_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QVariantList>("arguments");
    const QVariantList right{u"e1"_s, 1, u"x"_s, u"y"_s};
    const QVariantMap table{{u"a"_s, 1}};
    QTest::newRow("other path") << u"/card"_s << u"zr.card"_s << u"inserted"_s << right;
    QTest::newRow("other interface") << u"/"_s << u"zr.cards"_s << u"inserted"_s << right;
    QTest::newRow("other name") << u"/"_s << u"zr.card"_s << u"plugged"_s << right;
    const auto card = [](const char *row, const QString &name, const QVariantList &arguments) {
        QTest::newRow(row) << u"/"_s << u"zr.card"_s << name << arguments;
    };
    card("too few arguments", u"inserted"_s, right.first(2));
    card("number as text", u"inserted"_s, {u"e1"_s, u"1"_s, u"x"_s, u"y"_s});
    card("unsigned number", u"inserted"_s, {u"e1"_s, 1U, u"x"_s, u"y"_s});
    card("table instead of text", u"inserted"_s, {table, 1, u"x"_s, u"y"_s});
    card("table instead of a number", u"inserted"_s, {u"e1"_s, table, u"x"_s, u"y"_s});
    card("one argument too many", u"inserted"_s, right + QVariantList{u"z"_s});
    card("removal of a table", u"removed"_s, {table, 1});
    card("removal without a number", u"removed"_s, {u"e1"_s});
    card("no arguments", u"inserted"_s, {});
}

void CardsOnTheBusTest::otherSignalsAreNotHeard() {
    QFETCH(QString, path);
    QFETCH(QString, interface);
    QFETCH(QString, name);
    QFETCH(QVariantList, arguments);
    QVERIFY(sender.send(path, interface, name, arguments));
    // Signals keep their order: when this one is there, the other one has been passed over.
    insert(u"gbe"_s, 2);
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first().first().toString(), u"gbe"_s);
    QCOMPARE(removed->size(), 0);
}

void CardsOnTheBusTest::unknownTypeIsToldOverTheBus() {
    insert(u"e2"_s, 1);
    QTRY_VERIFY(window->findChild<WarningWindow *>());
    QVERIFY(window->findChild<WarningWindow *>()->isVisible());
    QVERIFY(inserted->isEmpty());
}

void CardsOnTheBusTest::longTextsArrive() {
    const QString longText(64 * 1024, u'x');
    send(u"inserted"_s, {u"e1"_s, 1, longText, longText});
    QTRY_COMPARE(inserted->size(), 1);
    QCOMPARE(inserted->first()[2].toString(), longText);
}

QTEST_MAIN(CardsOnTheBusTest)
#include "tst_cardsonthebus.moc"
