// SPDX-License-Identifier: GPL-3.0-or-later
#include "basepopupwindow.h"

#include "dialogframe.h"

#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <memory>

using namespace Qt::Literals::StringLiterals;

class BasePopupWindowTest : public QObject {
    Q_OBJECT

private slots:
    void opensBesideTheCallerInsideTheWindow_data();
    void opensBesideTheCallerInsideTheWindow();
    void opensBesideARectangleWithASize();
    void frameLiesAroundItWhileItIsOpen();
    void closes_data();
    void closes();
    void pressOutsideCloses();
    void closesWithItsCaller();
    void arrowsGoFromButtonToButton();
    void keyPressesTheFocusedButton_data();
    void keyPressesTheFocusedButton();
    void keyThatOpenedItPressesNothing();
    void pressedButtonIsToldAfterClosing();
    void buttonLeftWhileHeldChoosesNothing();
    void clickWithoutPressCloses();
    void keysReturnToTheWindow();
    void moreThanFitsScrollsByKeys();
    void opensAgainFromTheTop();
    void deletedWhileOpenLeavesNoFrame();
    void clickMayDeleteIt();

private:
    void makeWindow(const QSize &size, const QPoint &callerPosition);
    void addButtons(int count);
    QPushButton *button(int index) const { return popup->findChildren<QPushButton *>().at(index); }
    QRect callerOnScreen() const { return {caller->mapToGlobal(QPoint()), caller->size()}; }
    void openWithButtons(int count);

    std::unique_ptr<QWidget> window;
    QPushButton *caller = nullptr;
    QPointer<BasePopupWindow> popup;
};

void BasePopupWindowTest::makeWindow(const QSize &size, const QPoint &callerPosition) {
    window = std::make_unique<QWidget>();
    window->setGeometry(QRect(QPoint(), size));
    caller = new QPushButton(window.get());
    caller->setGeometry(QRect(callerPosition, QSize(74, 46)));
    window->show();
    window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(window.get()));
    caller->setFocus();
    popup = new BasePopupWindow(window.get());
    auto *const box = new QVBoxLayout(popup);
    box->setContentsMargins(0, 0, 0, 0);
}

void BasePopupWindowTest::addButtons(int count) {
    for (int i = 0; i < count; ++i) {
        auto *const added = new QPushButton(QString::number(i));
        added->setMinimumSize(140, 52);
        popup->layout()->addWidget(added);
    }
}

void BasePopupWindowTest::openWithButtons(int count) {
    makeWindow({800, 480}, {2, 380});
    addButtons(count);
    popup->show(caller);
    QVERIFY(popup->isVisible());
}

void BasePopupWindowTest::opensBesideTheCallerInsideTheWindow_data() {
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QPoint>("position");
    QTest::addColumn<int>("buttons");
    QTest::addColumn<bool>("isRight");
    for (const QSize &screen : {QSize(800, 480), QSize(800, 600)}) {
        for (const int buttons : {1, 3, 20}) {
            const auto row = [&](const char *corner, int x, int y) {
                QTest::addRow("%s %d %d", corner, screen.height(), buttons)
                    << screen << QPoint(x, y) << buttons << (x < 400);
            };
            row("top left", 0, 0);
            row("bottom left", 2, screen.height() - 46);
            row("top right", 724, 0);
            row("bottom right", 724, screen.height() - 46);
        }
    }
}

void BasePopupWindowTest::opensBesideTheCallerInsideTheWindow() {
    QFETCH(QSize, screen);
    QFETCH(QPoint, position);
    QFETCH(int, buttons);
    QFETCH(bool, isRight);
    makeWindow(screen, position);
    addButtons(buttons);
    popup->show(caller);
    QVERIFY(popup->isVisible());
    QVERIFY(window->geometry().contains(popup->geometry()));
    QVERIFY(!popup->geometry().intersects(callerOnScreen()));
    QCOMPARE(popup->x() > callerOnScreen().right(), isRight);
    QVERIFY(popup->height() >= 52);
}

void BasePopupWindowTest::opensBesideARectangleWithASize() {
    makeWindow({800, 480}, {2, 380});
    popup->show(QRect(300, 200, 20, 20), QSize(222, 111));
    QCOMPARE(popup->size(), QSize(222, 111));
    QVERIFY(popup->x() > 319);
    QVERIFY(popup->x() < 350);
    popup->close();
    addButtons(1);
    popup->show(QRect(300, 200, 20, 20));
    QVERIFY(popup->isVisible());
    QCOMPARE(popup->size(), popup->sizeHint());
}

void BasePopupWindowTest::frameLiesAroundItWhileItIsOpen() {
    openWithButtons(2);
    const DialogFrame *const frame = window->findChild<DialogFrame *>();
    QVERIFY(frame);
    QVERIFY(frame->isVisible());
    QVERIFY(window->rect().contains(frame->geometry()));
    const QRect framed(frame->mapToGlobal(QPoint()), frame->size());
    QCOMPARE(framed, popup->geometry().marginsAdded({8, 8, 8, 8}));
    popup->close();
    QVERIFY(frame->isHidden());
}

void BasePopupWindowTest::closes_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Escape") << Qt::Key_Escape;
    QTest::newRow("Back") << Qt::Key_Back;
}

void BasePopupWindowTest::closes() {
    QFETCH(Qt::Key, key);
    openWithButtons(2);
    QSignalSpy clicks(button(0), SIGNAL(clicked()));
    QTest::keyClick(popup->focusWidget(), key);
    QVERIFY(popup->isHidden());
    QCOMPARE(clicks.size(), 0);
}

void BasePopupWindowTest::pressOutsideCloses() {
    openWithButtons(2);
    QSignalSpy clicks(caller, SIGNAL(clicked()));
    QTest::mouseClick(popup, Qt::LeftButton, {}, popup->mapFromGlobal(callerOnScreen().center()));
    QVERIFY(popup->isHidden());
    QCOMPARE(clicks.size(), 0);
}

void BasePopupWindowTest::closesWithItsCaller() {
    openWithButtons(2);
    caller->hide();
    QVERIFY(popup->isHidden());
}

void BasePopupWindowTest::arrowsGoFromButtonToButton() {
    openWithButtons(3);
    QCOMPARE(popup->focusWidget(), button(0));
    QVERIFY(button(0)->hasFocus());
    QTest::keyClick(popup->focusWidget(), Qt::Key_Down);
    QVERIFY(button(1)->hasFocus());
    QTest::keyClick(popup->focusWidget(), Qt::Key_Down);
    QTest::keyClick(popup->focusWidget(), Qt::Key_Up);
    QVERIFY(button(1)->hasFocus());
    QVERIFY(popup->isVisible());
}

void BasePopupWindowTest::keyPressesTheFocusedButton_data() {
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter") << Qt::Key_Enter;
    QTest::newRow("Space") << Qt::Key_Space;
    QTest::newRow("Select") << Qt::Key_Select;
}

void BasePopupWindowTest::keyPressesTheFocusedButton() {
    QFETCH(Qt::Key, key);
    openWithButtons(2);
    QSignalSpy clicks(button(1), SIGNAL(clicked()));
    QTest::keyClick(popup->focusWidget(), Qt::Key_Down);
    QTest::keyClick(popup->focusWidget(), key);
    QCOMPARE(clicks.size(), 1);
    QVERIFY(popup->isHidden());
}

void BasePopupWindowTest::keyThatOpenedItPressesNothing() {
    openWithButtons(2);
    QSignalSpy clicks(button(0), SIGNAL(clicked()));
    QTest::keyRelease(popup->focusWidget(), Qt::Key_Return);
    QCOMPARE(clicks.size(), 0);
    QVERIFY(popup->isVisible());
}

void BasePopupWindowTest::pressedButtonIsToldAfterClosing() {
    openWithButtons(2);
    int clicks = 0;
    connect(button(0), &QPushButton::clicked, this, [&] {
        ++clicks;
        QVERIFY(popup->isHidden());
    });
    QTest::mouseClick(button(0), Qt::LeftButton);
    QCOMPARE(clicks, 1);
    QVERIFY(popup->isHidden());
    popup->show(caller);
    QTest::mouseClick(button(0), Qt::LeftButton);
    QCOMPARE(clicks, 2);
}

void BasePopupWindowTest::buttonLeftWhileHeldChoosesNothing() {
    openWithButtons(2);
    QSignalSpy clicks(button(0), SIGNAL(clicked()));
    QTest::mousePress(button(0), Qt::LeftButton);
    QTest::mouseMove(button(0), QPoint(20, 400));
    QTest::mouseRelease(button(0), Qt::LeftButton, {}, QPoint(20, 400));
    QCOMPARE(clicks.size(), 0);
    QVERIFY(popup->isVisible());
}

void BasePopupWindowTest::clickWithoutPressCloses() {
    openWithButtons(2);
    button(1)->click();
    QVERIFY(popup->isHidden());
}

void BasePopupWindowTest::keysReturnToTheWindow() {
    openWithButtons(2);
    QTest::keyClick(popup->focusWidget(), Qt::Key_Escape);
    QTRY_COMPARE(QGuiApplication::focusWindow(), window->windowHandle());
    QTRY_COMPARE(QApplication::focusWidget(), caller);
}

void BasePopupWindowTest::moreThanFitsScrollsByKeys() {
    openWithButtons(20);
    auto *const bar = popup->findChild<QScrollBar *>();
    QVERIFY(bar->isVisible());
    QCOMPARE(button(0)->y(), 0);
    for (int i = 1; i < 20; ++i) {
        QTest::keyClick(popup->focusWidget(), Qt::Key_Down);
        QVERIFY(button(i)->hasFocus());
        QVERIFY(popup->rect().contains(button(i)->geometry()));
        QVERIFY(button(i)->height() >= 52);
    }
    QCOMPARE(bar->value(), bar->maximum());
    bar->setValue(0);
    QCOMPARE(button(0)->y(), 0);
}

void BasePopupWindowTest::opensAgainFromTheTop() {
    openWithButtons(20);
    const QRect place = popup->geometry();
    QTest::keyClick(popup->focusWidget(), Qt::Key_Up);
    QVERIFY(button(19)->hasFocus());
    popup->close();
    popup->show(caller);
    QVERIFY(button(0)->hasFocus());
    QCOMPARE(button(0)->y(), 0);
    QCOMPARE(popup->geometry(), place);
}

void BasePopupWindowTest::deletedWhileOpenLeavesNoFrame() {
    openWithButtons(2);
    delete popup;
    QVERIFY(!window->findChild<DialogFrame *>());
    openWithButtons(2);
    window.reset();
    QVERIFY(!popup);
}

void BasePopupWindowTest::clickMayDeleteIt() {
    openWithButtons(2);
    connect(button(0), &QPushButton::clicked, this, [this] { popup->deleteLater(); });
    QTest::mouseClick(button(0), Qt::LeftButton);
    QTRY_VERIFY(!popup);
    QVERIFY(window->isVisible());
}

QTEST_MAIN(BasePopupWindowTest)
#include "tst_basepopupwindow.moc"
