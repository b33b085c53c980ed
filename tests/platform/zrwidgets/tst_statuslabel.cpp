// SPDX-License-Identifier: GPL-3.0-or-later
#include "statuslabel.h"

#include <QImage>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class StatusLabelTest : public QObject {
    Q_OBJECT

private slots:
    void tableGrowsWithItsCells();
    void valueStandsAtTheRightEdge();
    void cellsFarOutsideArePassedOver();
    void longTextIsElided();
};

void StatusLabelTest::tableGrowsWithItsCells() {
    StatusLabel label;
    QCOMPARE(label.sizeHint().height(), 0);
    label.setCell(0, 0, Qt::AlignLeft, u"Charge Level:"_s, Qt::black, 0, false);
    const QSize oneRow = label.sizeHint();
    label.setCell(2, 2, Qt::AlignRight, u"Charging"_s, Qt::black, 0, false);
    QCOMPARE(label.sizeHint().height(), 2 * oneRow.height());
    label.setCell(1, 0, Qt::AlignRight, u"76%"_s, Qt::black, 200, false);
    QVERIFY(label.sizeHint().width() >= oneRow.width() + 200);
}

void StatusLabelTest::valueStandsAtTheRightEdge() {
    StatusLabel label;
    label.resize(300, 38);
    label.setCell(0, 0, Qt::AlignRight, u"\u2588"_s, Qt::red, 0, false);
    const QImage picture = label.grab().toImage();
    int rightmost = 0;
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, 19) == QColor(Qt::red))
            rightmost = x;
    }
    QVERIFY(rightmost > 280 && rightmost < 295);
}

void StatusLabelTest::cellsFarOutsideArePassedOver() {
    StatusLabel label;
    label.setCell(-1, 0, Qt::AlignLeft, u"x"_s, Qt::black, 0, false);
    label.setCell(0, -1, Qt::AlignLeft, u"x"_s, Qt::black, 0, false);
    label.setCell(0, 1'000'000, Qt::AlignLeft, u"x"_s, Qt::black, 0, false);
    label.setCell(1'000'000, 0, Qt::AlignLeft, u"x"_s, Qt::black, 0, false);
    QCOMPARE(label.sizeHint().height(), 0);
}

void StatusLabelTest::longTextIsElided() {
    StatusLabel label;
    label.setCell(0, 0, Qt::AlignLeft, QString(65536, u'W'), Qt::black, 0, false);
    QVERIFY(label.minimumSizeHint().width() < 50);
    label.resize(300, 38);
    QVERIFY(!label.grab().isNull());
}

QTEST_MAIN(StatusLabelTest)
#include "tst_statuslabel.moc"
