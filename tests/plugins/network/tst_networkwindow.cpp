// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakenetwork.h"
#include "networkreader.h"
#include "networkwindow.h"

#include <datatable.h>
#include <visibletimer.h>

#include <QScrollBar>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class NetworkWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void interfacesThatComeAndGoAreFollowed();
    void twoHundredInterfacesScroll();
    void scrolledTableStaysWhereItIs();
    void isReadAnewOnlyWhileItCanBeSeen();
    void hasOneLevel();

private:
    DataTable *show();

    std::unique_ptr<FakeNetwork> network;
    std::unique_ptr<NetworkWindow> window;
};

void NetworkWindowTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s));
    network = std::make_unique<FakeNetwork>();
    window = std::make_unique<NetworkWindow>(std::make_unique<NetworkReader>(network->path()));
    window->resize(720, 420);
    window->findChild<VisibleTimer *>()->setInterval(std::chrono::milliseconds(5));
}

DataTable *NetworkWindowTest::show() {
    window->show();
    return window->findChild<DataTable *>();
}

void NetworkWindowTest::interfacesThatComeAndGoAreFollowed() {
    network->plug(u"eth7"_s, 7);
    const DataTable *const table = show();
    QCOMPARE(table->model()->rowCount(), 1);
    network->plug(u"usb0"_s, 8);
    QTRY_COMPARE(table->model()->rowCount(), 2);
    network->unplug(u"eth7"_s);
    QTRY_COMPARE(table->model()->rowCount(), 1);
}

void NetworkWindowTest::twoHundredInterfacesScroll() {
    for (int number = 0; number < 200; ++number)
        network->plug(u"tap%1"_s.arg(number), number);
    const DataTable *const table = show();
    QCOMPARE(table->model()->rowCount(), 200);
    QTRY_VERIFY(table->verticalScrollBar()->maximum() > 200 * 50 - 420);
    QCOMPARE(table->horizontalScrollBar()->maximum(), 0);
    QCOMPARE(window->size(), QSize(720, 420));
}

void NetworkWindowTest::scrolledTableStaysWhereItIs() {
    for (int number = 1; number <= 50; ++number)
        network->plug(u"tap%1"_s.arg(number), number);
    const DataTable *const table = show();
    QTRY_VERIFY(table->verticalScrollBar()->maximum() > 1000);
    table->verticalScrollBar()->setValue(500);
    network->plug(u"usb0"_s, 99);
    QTRY_COMPARE(table->model()->rowCount(), 51);
    QCOMPARE(table->verticalScrollBar()->value(), 500);
}

void NetworkWindowTest::isReadAnewOnlyWhileItCanBeSeen() {
    const auto *const timer = window->findChild<VisibleTimer *>();
    QVERIFY(!timer->isRunning());
    window->show();
    QVERIFY(timer->isRunning());
    window->hide();
    QVERIFY(!timer->isRunning());
}

void NetworkWindowTest::hasOneLevel() {
    QVERIFY(window->stepBack());
}

QTEST_MAIN(NetworkWindowTest)
#include "tst_networkwindow.moc"
