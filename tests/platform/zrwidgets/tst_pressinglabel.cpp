// SPDX-License-Identifier: GPL-3.0-or-later
#include "popuplabel.h"
#include "pressinglabel.h"
#include "statuspanel.h"

#include <palettefactory.h>

#include <QImage>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PressingLabelTest : public QObject {
    Q_OBJECT

private slots:
    void pressAndReleaseInsideIsAClick();
    void releaseOutsideIsNone();
    void keysClickToo();
    void heldLabelStandsOnTheAccent();
    void pictureIsDimmedByNight();
    void pictureStaysInItsPlace();
    void pictureCanBeKept();
    void labelWithoutAPictureHasNoPressedOneEither();
    void targetIsHighEnoughForAThumb();
    void popupLabelOpensAndClosesItsPanel();
    void popupLabelTakesAPanelOfTheCaller();

private:
    static QPixmap redPicture() {
        QPixmap picture(36, 36);
        picture.fill(Qt::transparent);
        QPainter(&picture).fillRect(16, 16, 4, 4, Qt::red);
        return picture;
    }
};

void PressingLabelTest::pressAndReleaseInsideIsAClick() {
    PressingLabel label(nullptr, false);
    const QSignalSpy clicks(&label, &PressingLabel::clicked);
    QTest::mouseClick(&label, Qt::LeftButton);
    QCOMPARE(clicks.count(), 1);
}

void PressingLabelTest::releaseOutsideIsNone() {
    PressingLabel label(nullptr, false);
    const QSignalSpy clicks(&label, &PressingLabel::clicked);
    QTest::mousePress(&label, Qt::LeftButton);
    QTest::mouseRelease(&label, Qt::LeftButton, {}, QPoint(1000, 0));
    QCOMPARE(clicks.count(), 0);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QCOMPARE(clicks.count(), 0);
}

void PressingLabelTest::keysClickToo() {
    PressingLabel label(nullptr, false);
    const QSignalSpy clicks(&label, &PressingLabel::clicked);
    QTest::keyClick(&label, Qt::Key_Space);
    QTest::keyClick(&label, Qt::Key_Return);
    QTest::keyClick(&label, Qt::Key_A);
    QCOMPARE(clicks.count(), 2);
}

void PressingLabelTest::heldLabelStandsOnTheAccent() {
    PressingLabel label(nullptr, false);
    label.setPixmap(redPicture());
    label.resize(60, 60);
    label.setAlignment(Qt::AlignCenter);
    const QColor accent = label.palette().color(QPalette::Highlight);
    const QColor onAccent = label.palette().color(QPalette::HighlightedText);
    QVERIFY(label.grab().toImage().pixelColor(30, 10) != accent);
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(label.grab().toImage().pixelColor(30, 10), accent);
    QCOMPARE(label.grab().toImage().pixelColor(30, 30), onAccent);
    QTest::mouseRelease(&label, Qt::LeftButton);
    QVERIFY(label.grab().toImage().pixelColor(30, 10) != accent);

    const QImage down = label.downPixmap().toImage();
    QCOMPARE(down.size(), QSize(36, 36));
    QCOMPARE(down.pixelColor(18, 5), accent);
    QCOMPARE(down.pixelColor(18, 18), onAccent);
}

void PressingLabelTest::pictureIsDimmedByNight() {
    PressingLabel label(nullptr, false);
    label.setPixmap(redPicture());
    label.resize(60, 60);
    label.setAlignment(Qt::AlignCenter);
    QCOMPARE(label.grab().toImage().pixelColor(30, 30), QColor(Qt::red));
    PaletteFactory::setSet(PaletteFactory::Night);
    label.setPalette(PaletteFactory::getPalette(u"Picture"_s));
    PaletteFactory::setSet(PaletteFactory::Day);
    QCOMPARE(label.grab().toImage().pixelColor(30, 30), label.palette().color(QPalette::PlaceholderText));
}

void PressingLabelTest::pictureStaysInItsPlace() {
    PressingLabel label(nullptr, false);
    QPixmap picture(36, 36);
    picture.fill(Qt::red);
    label.setPixmap(picture);
    label.setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    label.setMargin(4);
    label.resize(60, 60);
    const QColor onAccent = label.palette().color(QPalette::HighlightedText);
    QCOMPARE(label.grab().toImage().pixelColor(30, 4), QColor(Qt::red));
    QVERIFY(label.grab().toImage().pixelColor(30, 3) != QColor(Qt::red));
    QTest::mousePress(&label, Qt::LeftButton);
    QCOMPARE(label.grab().toImage().pixelColor(30, 4), onAccent);
    QVERIFY(label.grab().toImage().pixelColor(30, 3) != onAccent);
}

void PressingLabelTest::pictureCanBeKept() {
    PressingLabel label(nullptr, true);
    label.setPixmap(redPicture());
    QCOMPARE(label.downPixmap().toImage(), redPicture().toImage());
}

void PressingLabelTest::labelWithoutAPictureHasNoPressedOneEither() {
    QVERIFY(PressingLabel(nullptr, false).downPixmap().isNull());
}

void PressingLabelTest::targetIsHighEnoughForAThumb() {
    QVERIFY(PressingLabel(nullptr, false).sizeHint().height() >= 46);
}

void PressingLabelTest::popupLabelOpensAndClosesItsPanel() {
    QWidget window;
    window.resize(400, 300);
    PopupLabel label(&window, nullptr);
    label.setGeometry(0, 100, 60, 60);
    window.show();
    new QLabel(u"Report"_s, label.panel());
    QTest::mouseClick(&label, Qt::LeftButton);
    QVERIFY(label.panel()->isVisible());
    QVERIFY(label.panel()->x() >= label.mapToGlobal(QPoint(40, 0)).x());
    emit label.clicked();
    QVERIFY(!label.panel()->isVisible());
}

void PressingLabelTest::popupLabelTakesAPanelOfTheCaller() {
    StatusPanel panel(nullptr, 100);
    const PopupLabel label(nullptr, &panel);
    QCOMPARE(label.panel(), &panel);
}

QTEST_MAIN(PressingLabelTest)
#include "tst_pressinglabel.moc"
