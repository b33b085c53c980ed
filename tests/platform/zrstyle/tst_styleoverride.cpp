// SPDX-License-Identifier: GPL-3.0-or-later
#include "styleoverride.h"

#include <palettefactory.h>

#include <QAbstractAnimation>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHelpEvent>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTest>
#include <QTimeEdit>
#include <QToolButton>
#include <QToolTip>
#include <functional>
#include <memory>

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
    void targetFitsAThumb_data();
    void targetFitsAThumb();
    void wholeCheckBoxCanBePressed();
    void stepsOfASpinBoxFitAThumb();
    void pressBesideTheHandleMovesTheSlider();
    void listOfAComboBoxFitsAThumb();
    void cornersOfAPopupShowWhatLiesBelow_data();
    void cornersOfAPopupShowWhatLiesBelow();
    void checkableGroupBoxIsCheckedByItsTitle();
    void thereAreNoToolTips();
    void nothingMovesByItself();
    void disabledTextIsPlain();
    void plainControlHasLegibleLetters();
    void ownFontIsKept();
    void progressBarBelowAStyleSheetKeepsItsLook();
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

void StyleOverrideTest::targetFitsAThumb_data() {
    QTest::addColumn<std::shared_ptr<QWidget>>("widget");
    const auto row = [](const char *name, QWidget *widget) {
        QTest::newRow(name) << std::shared_ptr<QWidget>(widget);
    };
    row("push button", new QPushButton(u"Save"_s));
    row("tool button", new QToolButton);
    row("check box", new QCheckBox(u"Loop"_s));
    row("radio button", new QRadioButton(u"E1"_s));
    row("line edit", new QLineEdit);
    row("spin box", new QSpinBox);
    row("time edit", new QTimeEdit);
    row("slider", new QSlider(Qt::Horizontal));
    row("combo box", new QComboBox);
    auto *const tabs = new QTabBar;
    tabs->addTab(u"A"_s);
    row("tab bar", tabs);
    auto *const menu = new QMenu;
    menu->addAction(u"A"_s);
    row("menu", menu);
}

void StyleOverrideTest::targetFitsAThumb() {
    QFETCH(std::shared_ptr<QWidget>, widget);
    widget->ensurePolished();
    QVERIFY2(widget->sizeHint().height() >= 52, qPrintable(QString::number(widget->sizeHint().height())));
    QVERIFY2(widget->sizeHint().width() >= 52, qPrintable(QString::number(widget->sizeHint().width())));
}

void StyleOverrideTest::wholeCheckBoxCanBePressed() {
    QCheckBox box(u"Loop"_s);
    box.resize(box.sizeHint());
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(box.isChecked());
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 3, box.height() - 3));
    QVERIFY(!box.isChecked());
}

void StyleOverrideTest::stepsOfASpinBoxFitAThumb() {
    QSpinBox box;
    box.setValue(40);
    box.resize(200, 52);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(150, 4));
    QCOMPARE(box.value(), 41);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(146, 48));
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(98, 48));
    QCOMPARE(box.value(), 39);
}

void StyleOverrideTest::pressBesideTheHandleMovesTheSlider() {
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 100);
    slider.resize(240, 52);
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(120, 26));
    QVERIFY2(qAbs(slider.value() - 50) <= 1, qPrintable(QString::number(slider.value())));
    QVERIFY(slider.isSliderDown());
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(120, 26));
}

void StyleOverrideTest::listOfAComboBoxFitsAThumb() {
    QComboBox box;
    box.addItems({u"E1"_s, u"E3"_s});
    box.resize(160, 52);
    box.show();
    box.showPopup();
    QTRY_VERIFY(box.view()->isVisible());
    QVERIFY(box.view()->visualRect(box.model()->index(0, 0)).height() >= 52);
    // A panel with an edge of its own, not one with the page.
    const QWidget *const panel = box.view()->parentWidget();
    const QImage picture = box.view()->window()->grab().toImage();
    QCOMPARE(picture.pixelColor(panel->width() / 2, 0), panel->palette().color(QPalette::PlaceholderText));
    QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, {}, QPoint(20, 100));
    QCOMPARE(box.currentIndex(), 1);
}

void StyleOverrideTest::cornersOfAPopupShowWhatLiesBelow_data() {
    QTest::addColumn<std::function<QWidget *(QWidget *)>>("open");
    const std::function<QWidget *(QWidget *)> openMenu = [](QWidget *window) -> QWidget * {
        auto *const menu = new QMenu(window);
        menu->addAction(u"Copy"_s);
        menu->popup(window->mapToGlobal(QPoint(20, 20)));
        return menu;
    };
    const std::function<QWidget *(QWidget *)> openSubMenu = [openMenu](QWidget *window) -> QWidget * {
        auto *const menu = qobject_cast<QMenu *>(openMenu(window));
        QMenu *const more = menu->addMenu(u"More"_s);
        more->addAction(u"Loop"_s);
        more->popup(window->mapToGlobal(QPoint(20, 150)));
        return more;
    };
    const std::function<QWidget *(QWidget *)> openList = [](QWidget *window) -> QWidget * {
        auto *const box = new QComboBox(window);
        box->addItems({u"E1"_s, u"E3"_s});
        box->setGeometry(20, 20, 128, 52);
        box->show();
        box->showPopup();
        return box->view()->parentWidget();
    };
    QTest::newRow("menu") << openMenu;
    QTest::newRow("menu of a menu") << openSubMenu;
    QTest::newRow("list of a combo box") << openList;
}

void StyleOverrideTest::cornersOfAPopupShowWhatLiesBelow() {
    QFETCH(const std::function<QWidget *(QWidget *)>, open);
    QWidget window;
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2D3B6F));
    window.setPalette(dark);
    window.resize(400, 300);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QWidget *const popup = open(&window);
    QVERIFY(popup->isVisible());
    popup->setPalette(PaletteFactory::getPalette(u"GenericWindow"_s));
    const QImage picture = popup->grab().toImage();
    const QRect all = picture.rect();
    for (const QPoint corner : {all.topLeft(), all.topRight(), all.bottomLeft(), all.bottomRight()})
        QCOMPARE(picture.pixelColor(corner), QColor(0x2D3B6F));
    QCOMPARE(picture.pixelColor(all.center().x(), 4), popup->palette().color(QPalette::Base));
    popup->hide();
}

void StyleOverrideTest::checkableGroupBoxIsCheckedByItsTitle() {
    QGroupBox box(u"Limits"_s);
    box.setCheckable(true);
    box.resize(200, 120);
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(60, 26));
    QVERIFY(!box.isChecked());
}

void StyleOverrideTest::thereAreNoToolTips() {
    QPushButton button(u"Save"_s);
    button.setToolTip(u"Saves"_s);
    button.show();
    QHelpEvent help(QEvent::ToolTip, QPoint(10, 10), button.mapToGlobal(QPoint(10, 10)));
    QVERIFY(QApplication::sendEvent(&button, &help));
    QVERIFY(!QToolTip::isVisible());
}

void StyleOverrideTest::nothingMovesByItself() {
    const QStyle *const style = QApplication::style();
    QCOMPARE(style->styleHint(QStyle::SH_Widget_Animation_Duration), 0);
    QCOMPARE(style->styleHint(QStyle::SH_Widget_Animate), 0);
    QCOMPARE(style->styleHint(QStyle::SH_Menu_SubMenuPopupDelay), 0);
    QProgressBar bar;
    bar.setRange(0, 0);
    bar.resize(200, 24);
    bar.show();
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    bar.grab();
    QVERIFY(QApplication::style()->findChildren<QAbstractAnimation *>().isEmpty());
}

void StyleOverrideTest::disabledTextIsPlain() {
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_EtchDisabledText), 0);
    // A mnemonic is a key that the instrument does not have.
    QPushButton with(u"&Save"_s);
    QPushButton without(u"Save"_s);
    QCOMPARE(with.grab().toImage(), without.grab().toImage());
}

void StyleOverrideTest::plainControlHasLegibleLetters() {
    QPushButton button;
    QLineEdit edit;
    QSpinBox box;
    for (QWidget *const widget : std::initializer_list<QWidget *>{&button, &edit, &box}) {
        widget->ensurePolished();
        QCOMPARE(widget->font().pixelSize(), 18);
    }
}

void StyleOverrideTest::ownFontIsKept() {
    QPushButton button;
    QFont font = button.font();
    font.setPixelSize(14);
    button.setFont(font);
    button.ensurePolished();
    QCOMPARE(button.font().pixelSize(), 14);
}

void StyleOverrideTest::progressBarBelowAStyleSheetKeepsItsLook() {
    const auto picture = [](const QString &sheet) {
        QFrame frame;
        frame.setStyleSheet(sheet);
        auto *const bar = new QProgressBar(&frame);
        bar->setValue(30);
        bar->resize(200, 24);
        auto *const button = new QPushButton(u"Yes"_s, &frame);
        button->setGeometry(0, 30, 100, 52);
        frame.resize(200, 90);
        return frame.grab().toImage();
    };
    QCOMPARE(picture(u"QFrame { border: 0px; }"_s), picture(QString()));
}

QTEST_MAIN(StyleOverrideTest)
#include "tst_styleoverride.moc"
