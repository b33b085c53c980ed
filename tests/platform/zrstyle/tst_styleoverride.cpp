// SPDX-License-Identifier: GPL-3.0-or-later
#include "styleoverride.h"

#include <palettefactory.h>

#include <QApplication>
#include <QImage>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class StyleOverrideTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();

    void applicationsOwnStyleCanBeWrapped();
    void widgetGetsThePaletteItNames();
    void paletteFollowsTheProperty();
    void switchOfTheSetReachesEveryWidget();
    void pressedButtonTurnsToTheAccent();
    void disabledButtonLooksDisabled();
    void textWiderThanItsButtonLosesItsEnd();
    void focusIsARing();
    void scrollBarsFitAThumb();
    void scrollBarWithAHugeRangeKeepsItsHandle();
};

void StyleOverrideTest::initTestCase() {
    QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    QApplication::setStyle(new StyleOverride(QApplication::style()));
}

void StyleOverrideTest::applicationsOwnStyleCanBeWrapped() {
    QVERIFY(qobject_cast<StyleOverride *>(QApplication::style()));
    // Wrapping once more must leave the first one alive below.
    QApplication::setStyle(new StyleOverride(QApplication::style()));
    QPushButton button(u"Save"_s);
    QVERIFY(!button.grab().isNull());
}

void StyleOverrideTest::widgetGetsThePaletteItNames() {
    QWidget widget;
    widget.setProperty("palette_id", u"Chrome"_s);
    widget.ensurePolished();
    QCOMPARE(widget.palette().color(QPalette::Window),
             PaletteFactory::getPalette(u"Chrome"_s).color(QPalette::Window));
    QWidget plain;
    plain.ensurePolished();
    QCOMPARE(plain.palette().color(QPalette::Window),
             PaletteFactory::getPalette(u"GenericWindow"_s).color(QPalette::Window));
}

void StyleOverrideTest::paletteFollowsTheProperty() {
    QWidget widget;
    widget.setProperty("palette_id", u"Chrome"_s);
    widget.ensurePolished();
    widget.setProperty("palette_id", u"GenericWindow"_s);
    QCOMPARE(widget.palette().color(QPalette::Window),
             PaletteFactory::getPalette(u"GenericWindow"_s).color(QPalette::Window));
}

void StyleOverrideTest::switchOfTheSetReachesEveryWidget() {
    QWidget named;
    named.setProperty("palette_id", u"Chrome"_s);
    QWidget child(&named);
    QPushButton plain;
    QWidget neverShown;
    neverShown.setProperty("palette_id", u"Chrome"_s);
    named.show();
    plain.show();

    const auto wear = [](PaletteFactory::Set set) {
        PaletteFactory::setSet(set);
        QApplication::setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
        StyleOverride::applyPalettes();
    };
    for (const PaletteFactory::Set set : {PaletteFactory::Night, PaletteFactory::Day}) {
        wear(set);
        const QPalette chrome = PaletteFactory::getPalette(u"Chrome"_s);
        const QPalette content = PaletteFactory::getPalette(u"GenericWindow"_s);
        QCOMPARE(named.palette().color(QPalette::Window), chrome.color(QPalette::Window));
        QCOMPARE(child.palette().color(QPalette::Base), chrome.color(QPalette::Base));
        QTRY_COMPARE(plain.palette().color(QPalette::Button), content.color(QPalette::Button));
    }
    wear(PaletteFactory::Night);
    neverShown.ensurePolished();
    QCOMPARE(neverShown.palette().color(QPalette::Window),
             PaletteFactory::getPalette(u"Chrome"_s).color(QPalette::Window));
    wear(PaletteFactory::Day);
}

void StyleOverrideTest::pressedButtonTurnsToTheAccent() {
    QPushButton button;
    button.resize(120, 52);
    const QPoint besideTheText(20, 26);
    QCOMPARE(button.grab().toImage().pixelColor(besideTheText), button.palette().color(QPalette::Button));
    button.setDown(true);
    QCOMPARE(button.grab().toImage().pixelColor(besideTheText), button.palette().color(QPalette::Highlight));
}

void StyleOverrideTest::disabledButtonLooksDisabled() {
    QPushButton button;
    button.resize(120, 52);
    button.setEnabled(false);
    QCOMPARE(button.grab().toImage().pixelColor(20, 26),
             button.palette().color(QPalette::Disabled, QPalette::Button));
}

void StyleOverrideTest::textWiderThanItsButtonLosesItsEnd() {
    QPushButton button(u"Settings "_s.repeated(10));
    QPushButton empty;
    for (QPushButton *const each : {&button, &empty})
        each->resize(120, 52);
    const QImage picture = button.grab().toImage();
    const QImage blank = empty.grab().toImage();
    QVERIFY(picture != blank);
    const QRect leftEdge(0, 0, 6, 52);
    const QRect rightEdge(114, 0, 6, 52);
    QCOMPARE(picture.copy(leftEdge), blank.copy(leftEdge));
    QCOMPARE(picture.copy(rightEdge), blank.copy(rightEdge));
    const QString shown =
        button.fontMetrics().elidedText(button.text(), Qt::ElideRight, 120 - 16, Qt::TextShowMnemonic);
    QPushButton shortened(shown);
    shortened.resize(120, 52);
    QCOMPARE(picture, shortened.grab().toImage());
}

void StyleOverrideTest::focusIsARing() {
    QWidget window;
    QPushButton button(&window);
    button.setGeometry(10, 10, 120, 52);
    window.show();
    button.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    const QImage picture = button.grab().toImage();
    QCOMPARE(picture.pixelColor(60, 1), button.palette().color(QPalette::Highlight));
    QCOMPARE(picture.pixelColor(60, 10), button.palette().color(QPalette::Button));
}

void StyleOverrideTest::scrollBarsFitAThumb() {
    QListWidget list;
    for (int i = 0; i < 1000; ++i)
        list.addItem(QString::number(i));
    list.resize(200, 200);
    list.show();
    QVERIFY(list.verticalScrollBar()->isVisible());
    QCOMPARE(list.verticalScrollBar()->width(), 28);
    // The handle is at least as high as a finger is wide, at the very top.
    list.verticalScrollBar()->setValue(0);
    QTest::mousePress(list.verticalScrollBar(), Qt::LeftButton, {}, QPoint(14, 50));
    QVERIFY(list.verticalScrollBar()->isSliderDown());
    QTest::mouseRelease(list.verticalScrollBar(), Qt::LeftButton);
}

void StyleOverrideTest::scrollBarWithAHugeRangeKeepsItsHandle() {
    QScrollBar bar(Qt::Vertical);
    bar.setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    bar.resize(28, 30);
    QVERIFY(!bar.grab().isNull());
    bar.setRange(0, 0);
    QVERIFY(!bar.grab().isNull());
}

QTEST_MAIN(StyleOverrideTest)
#include "tst_styleoverride.moc"
