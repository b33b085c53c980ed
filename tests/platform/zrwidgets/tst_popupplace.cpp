// SPDX-License-Identifier: GPL-3.0-or-later
#include "popupplace.h"

#include <QTest>

class PopupPlaceTest : public QObject {
    Q_OBJECT

private slots:
    void popupStandsBesideItsCallerInsideTheScreen_data();
    void popupStandsBesideItsCallerInsideTheScreen();
};

void PopupPlaceTest::popupStandsBesideItsCallerInsideTheScreen_data() {
    QTest::addColumn<QRect>("caller");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    QTest::newRow("right of the left column, feet level")
        << QRect(2, 430, 74, 46) << QSize(400, 200) << QRect(84, 276, 400, 200);
    QTest::newRow("left of a caller at the right edge")
        << QRect(700, 100, 100, 50) << QSize(300, 100) << QRect(392, 50, 300, 100);
    QTest::newRow("caller at the top") << QRect(0, 0, 50, 50) << QSize(100, 200) << QRect(58, 0, 100, 200);
    QTest::newRow("caller outside the screen")
        << QRect(5000, 5000, 50, 50) << QSize(100, 100) << QRect(700, 380, 100, 100);
    QTest::newRow("larger than the screen")
        << QRect(0, 0, 50, 50) << QSize(5000, 5000) << QRect(0, 0, 800, 480);
}

void PopupPlaceTest::popupStandsBesideItsCallerInsideTheScreen() {
    QFETCH(QRect, caller);
    QFETCH(QSize, size);
    QTEST(placeBeside(caller, size, QRect(0, 0, 800, 480)), "place");
}

QTEST_GUILESS_MAIN(PopupPlaceTest)
#include "tst_popupplace.moc"
