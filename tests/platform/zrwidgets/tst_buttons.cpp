// SPDX-License-Identifier: GPL-3.0-or-later
#include "checkbutton.h"
#include "icontile.h"

#include <palettefactory.h>
#include <styleoverride.h>

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ButtonsTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void tileIsLightAndTurnsToTheAccentWhenPressed();
    void tilesPictureTurnsWhiteWhenPressed();
    void tilesPictureIsLightOnADarkTile();
    void longTitleDoesNotWidenTheTile_data();
    void longTitleDoesNotWidenTheTile();
    void tileAnswersTouchAndKeys();
    void checkedButtonIsAccent();
    void buttonIsAsWideAsItsTextAndGivesWay();
    void twoLinesFitIntoOneButton();
};

void ButtonsTest::initTestCase() {
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

void ButtonsTest::tileIsLightAndTurnsToTheAccentWhenPressed() {
    IconTile tile(QIcon(), u"Alarms"_s);
    tile.resize(300, 64);
    QCOMPARE(tile.grab().toImage().pixelColor(250, 10), tile.palette().color(QPalette::Base));
    tile.setDown(true);
    QCOMPARE(tile.grab().toImage().pixelColor(250, 10), tile.palette().color(QPalette::Highlight));
}

void ButtonsTest::tilesPictureTurnsWhiteWhenPressed() {
    QPixmap picture(40, 40);
    picture.fill(Qt::blue);
    IconTile tile{QIcon(picture), QString()};
    tile.resize(300, 64);
    QCOMPARE(tile.grab().toImage().pixelColor(36, 32), QColor(Qt::blue));
    tile.setDown(true);
    QCOMPARE(tile.grab().toImage().pixelColor(36, 32), QColor(Qt::white));
}

void ButtonsTest::tilesPictureIsLightOnADarkTile() {
    PaletteFactory::setSet(PaletteFactory::Night);
    const QPalette night = PaletteFactory::getPalette(u"GenericWindow"_s);
    PaletteFactory::setSet(PaletteFactory::Day);
    QPixmap picture(40, 40);
    picture.fill(Qt::blue);
    IconTile tile{QIcon(picture), QString()};
    tile.setPalette(night);
    tile.resize(300, 64);
    QCOMPARE(tile.grab().toImage().pixelColor(36, 32), night.color(QPalette::Highlight));
    tile.setDown(true);
    QCOMPARE(tile.grab().toImage().pixelColor(36, 32), night.color(QPalette::HighlightedText));
}

void ButtonsTest::longTitleDoesNotWidenTheTile_data() {
    QTest::addColumn<QString>("title");
    QTest::newRow("empty") << QString();
    QTest::newRow("200 characters") << QString(200, u'W');
    QTest::newRow("64 KiB") << QString(65536, u'W');
    QTest::newRow("line breaks") << u"a\nb\nc\nd\ne\nf"_s;
}

void ButtonsTest::longTitleDoesNotWidenTheTile() {
    QFETCH(QString, title);
    IconTile tile(QIcon(), title);
    QVERIFY(tile.sizeHint().width() <= 300);
    QVERIFY(tile.minimumSizeHint().width() <= 150);
    tile.resize(300, 64);
    const QImage picture = tile.grab().toImage();
    // The text keeps clear of the right edge.
    for (int y = 2; y < 62; ++y)
        QCOMPARE(picture.pixelColor(292, y), tile.palette().color(QPalette::Base));
}

void ButtonsTest::tileAnswersTouchAndKeys() {
    IconTile tile(QIcon(), u"Alarms"_s);
    const QSignalSpy clicks(&tile, &IconTile::clicked);
    QTest::mouseClick(&tile, Qt::LeftButton);
    QTest::keyClick(&tile, Qt::Key_Space);
    QTest::keyClick(&tile, Qt::Key_Return);
    QCOMPARE(clicks.count(), 3);
}

void ButtonsTest::checkedButtonIsAccent() {
    CheckButton button(u"PCM"_s);
    button.resize(112, 52);
    QCOMPARE(button.grab().toImage().pixelColor(8, 24), button.palette().color(QPalette::Base));
    button.setChecked(true);
    QCOMPARE(button.grab().toImage().pixelColor(8, 24), button.palette().color(QPalette::Highlight));
}

void ButtonsTest::buttonIsAsWideAsItsTextAndGivesWay() {
    const CheckButton narrow(u"PCM"_s);
    const CheckButton wide(u"Передача данных по сети"_s);
    QCOMPARE(narrow.sizeHint().width(), 112);
    QVERIFY(wide.sizeHint().width() > 200);
    QCOMPARE(narrow.minimumSizeHint().width(), 52);
    // No narrower than its longest word.
    QVERIFY(wide.minimumSizeHint().width() > 60);
    QVERIFY(wide.minimumSizeHint().width() <= 104);
}

void ButtonsTest::twoLinesFitIntoOneButton() {
    CheckButton button(u"Network\nTools"_s);
    QCOMPARE(button.sizeHint().height(), 52);
    button.resize(button.sizeHint());
    const QImage picture = button.grab().toImage();
    QSet<int> inkedRows;
    for (int y = 2; y < 46; ++y) {
        for (int x = 12; x < picture.width() - 12; ++x) {
            if (picture.pixelColor(x, y) == button.palette().color(QPalette::Text))
                inkedRows.insert(y);
        }
    }
    QVERIFY(inkedRows.contains(16) || inkedRows.contains(14));
    QVERIFY(inkedRows.contains(33) || inkedRows.contains(30));
    QVERIFY(!inkedRows.contains(3) && !inkedRows.contains(45));
}

QTEST_MAIN(ButtonsTest)
#include "tst_buttons.moc"
