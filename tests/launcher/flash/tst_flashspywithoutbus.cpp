// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/flashspy.h"

#include "errorstream.h"
#include "testconfig.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The connection of a process is made once, so this is a program of its own.
class FlashSpyWithoutBusTest : public QObject {
    Q_OBJECT

private slots:
    void missingBusIsTold();
};

void FlashSpyWithoutBusTest::missingBusIsTold() {
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    const TestConfig config;
    ErrorStream errors;
    const FlashSpy spy(nullptr);
    QCOMPARE(errors.take(), "No connection to the D-Bus session bus.\n");
}

QTEST_GUILESS_MAIN(FlashSpyWithoutBusTest)
#include "tst_flashspywithoutbus.moc"
