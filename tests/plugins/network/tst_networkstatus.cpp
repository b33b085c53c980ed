// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakenetwork.h"
#include "networkstatus.h"

#include <visibletimer.h>

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class NetworkStatusTest : public QObject {
    Q_OBJECT

private slots:
    void hasItsSizeBeforeItIsShown();
    void restsWhileItIsHidden();
};

void NetworkStatusTest::hasItsSizeBeforeItIsShown() {
    const NetworkStatus status(u"/nowhere"_s);
    QVERIFY(status.sizeHint().width() > 100);
    QVERIFY(status.sizeHint().height() > 0);
}

void NetworkStatusTest::restsWhileItIsHidden() {
    const FakeNetwork network;
    NetworkStatus status(network.path());
    const auto *const timer = status.findChild<VisibleTimer *>();
    QVERIFY(!timer->isRunning());
    status.show();
    QVERIFY(timer->isRunning());
    status.hide();
    QVERIFY(!timer->isRunning());
}

QTEST_MAIN(NetworkStatusTest)
#include "tst_networkstatus.moc"
