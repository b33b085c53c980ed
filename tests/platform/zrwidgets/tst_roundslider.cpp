// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundslider.h"

#include <QSignalSpy>
#include <QTest>

class RoundSliderTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        slider.resize(260, 48);
        slider.setPosition(50);
    }

    void positionIsToldWhenItChanges();
    void pressMovesTheHandle_data();
    void pressMovesTheHandle();
    void dragFollowsTheThumb();
    void keysMoveTheHandle_data();
    void keysMoveTheHandle();
    void positionBeyondTheEndsIsDrawnAtTheEnd();

private:
    RoundSlider slider;
};

void RoundSliderTest::positionIsToldWhenItChanges() {
    QSignalSpy told(&slider, &RoundSlider::positionChanged);
    slider.setPosition(50);
    QCOMPARE(told.size(), 0);
    slider.setPosition(70);
    QCOMPARE(told.size(), 1);
    QCOMPARE(told[0][0].toInt(), 70);
}

void RoundSliderTest::pressMovesTheHandle_data() {
    QTest::addColumn<int>("x");
    QTest::addColumn<int>("position");
    QTest::newRow("left end") << 0 << 0;
    QTest::newRow("middle") << 130 << 50;
    QTest::newRow("right end") << 259 << 100;
}

void RoundSliderTest::pressMovesTheHandle() {
    QFETCH(int, x);
    slider.setPosition(33);
    QTest::mouseClick(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(x, 24));
    QTEST(slider.position(), "position");
}

void RoundSliderTest::dragFollowsTheThumb() {
    QTest::mousePress(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(130, 24));
    QTest::mouseMove(&slider, QPoint(240, 24));
    QCOMPARE(slider.position(), 100);
    QTest::mouseMove(&slider, QPoint(-50, 400));
    QCOMPARE(slider.position(), 0);
    QTest::mouseRelease(&slider, Qt::LeftButton, Qt::NoModifier, QPoint(130, 24));
    QTest::mouseMove(&slider, QPoint(240, 24));
    QCOMPARE(slider.position(), 0);
}

void RoundSliderTest::keysMoveTheHandle_data() {
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("position");
    QTest::newRow("Left") << int(Qt::Key_Left) << 48;
    QTest::newRow("Right") << int(Qt::Key_Right) << 52;
    QTest::newRow("Page Down") << int(Qt::Key_PageDown) << 40;
    QTest::newRow("Page Up") << int(Qt::Key_PageUp) << 60;
    QTest::newRow("End") << int(Qt::Key_End) << 100;
    QTest::newRow("other key") << int(Qt::Key_A) << 50;
}

void RoundSliderTest::keysMoveTheHandle() {
    QFETCH(int, key);
    QTest::keyClick(&slider, Qt::Key(key));
    QTEST(slider.position(), "position");
}

void RoundSliderTest::positionBeyondTheEndsIsDrawnAtTheEnd() {
    slider.setPosition(100);
    const QImage end = slider.grab().toImage();
    slider.setPosition(250);
    QCOMPARE(slider.position(), 250);
    QCOMPARE(slider.grab().toImage(), end);
    slider.setPosition(0);
    const QImage beginning = slider.grab().toImage();
    slider.setPosition(-7);
    QCOMPARE(slider.grab().toImage(), beginning);
}

QTEST_MAIN(RoundSliderTest)
#include "tst_roundslider.moc"
