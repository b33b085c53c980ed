// SPDX-License-Identifier: GPL-3.0-or-later
#include "qwsserver.h"

#include <QCursor>
#include <QGuiApplication>
#include <QTest>

class QwsServerTest : public QObject {
    Q_OBJECT

private slots:
    void pointerIsHiddenAndShownAgain();
    void sayingTheSameTwiceChangesNothing();
};

void QwsServerTest::pointerIsHiddenAndShownAgain() {
    QWSServer::setCursorVisible(false);
    QVERIFY(QGuiApplication::overrideCursor());
    QCOMPARE(QGuiApplication::overrideCursor()->shape(), Qt::BlankCursor);
    QWSServer::setCursorVisible(true);
    QVERIFY(!QGuiApplication::overrideCursor());
}

void QwsServerTest::sayingTheSameTwiceChangesNothing() {
    QWSServer::setCursorVisible(true);
    QVERIFY(!QGuiApplication::overrideCursor());
    QWSServer::setCursorVisible(false);
    QWSServer::setCursorVisible(false);
    QWSServer::setCursorVisible(true);
    QVERIFY(!QGuiApplication::overrideCursor());
}

QTEST_MAIN(QwsServerTest)
#include "tst_qwsserver.moc"
