// SPDX-License-Identifier: GPL-3.0-or-later
#include "plainline.h"

#include <QImage>
#include <QTest>

class PlainLineTest : public QObject {
    Q_OBJECT

private slots:
    void horizontalLineIsAsHighAsItIsThick();
    void verticalLineIsAsWideAsItIsThick();
};

void PlainLineTest::horizontalLineIsAsHighAsItIsThick() {
    PlainLine line(PlainLine::Horizontal, 2);
    line.resize(100, 50);
    QCOMPARE(line.size(), QSize(100, 2));
    QCOMPARE(line.grab().toImage().pixel(99, 1), line.palette().color(QPalette::Dark).rgb());
}

void PlainLineTest::verticalLineIsAsWideAsItIsThick() {
    PlainLine line(PlainLine::Vertical, 3);
    line.resize(100, 50);
    QCOMPARE(line.size(), QSize(3, 50));
}

QTEST_MAIN(PlainLineTest)
#include "tst_plainline.moc"
