// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakemachine.h"
#include "systemstatus.h"

#include <visibletimer.h>

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class SystemStatusTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }
    void hasItsSizeBeforeItIsShown();
    void isReadAnewWhenItAppears();
    void restsWhileItIsHidden();
};

void SystemStatusTest::hasItsSizeBeforeItIsShown() {
    const FakeMachine machine;
    const SystemStatus status(machine.reader());
    QVERIFY(status.sizeHint().width() > 100);
    QVERIFY(status.sizeHint().height() > 100);
}

void SystemStatusTest::isReadAnewWhenItAppears() {
    const FakeMachine machine;
    SystemStatus status(machine.reader());
    status.resize(400, status.sizeHint().height());
    const QImage before = status.grab().toImage();
    machine.set(u"meminfo"_s, "MemTotal: 8000000 kB\n");
    status.show();
    QVERIFY(status.grab().toImage() != before);
}

void SystemStatusTest::restsWhileItIsHidden() {
    const FakeMachine machine;
    SystemStatus status(machine.reader());
    const auto *const timer = status.findChild<VisibleTimer *>();
    QVERIFY(!timer->isRunning());
    status.show();
    QVERIFY(timer->isRunning());
    status.hide();
    QVERIFY(!timer->isRunning());
}

QTEST_MAIN(SystemStatusTest)
#include "tst_systemstatus.moc"
