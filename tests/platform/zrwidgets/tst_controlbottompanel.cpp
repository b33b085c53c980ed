// SPDX-License-Identifier: GPL-3.0-or-later
#include "checkbutton.h"
#include "controlbottompanel.h"

#include <QButtonGroup>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<CheckButton *> fill(ControlBottomPanel &row, int count) {
    QList<CheckButton *> buttons;
    for (int i = 0; i < count; ++i) {
        buttons.append(new CheckButton(u"Card %1"_s.arg(i)));
        row.addWidget(buttons.last(), i == count - 1, 0, Qt::Alignment());
    }
    row.resize(720, 66);
    row.show();
    QCoreApplication::processEvents();
    return buttons;
}

} // namespace

class ControlBottomPanelTest : public QObject {
    Q_OBJECT

private slots:
    void positionOneIsTheRightEnd();
    void removedWidgetLeavesItsPlace();
    void sevenLongLabelsDoNotWidenTheRow();
    void moreThanFitAreReachedByAThumb();
    void checkedButtonComesIntoView();
    void buttonCheckedWhileHiddenIsInViewWhenShown();
};

void ControlBottomPanelTest::positionOneIsTheRightEnd() {
    ControlBottomPanel row;
    CheckButton first(u"PCM"_s), second(u"OTDR"_s), settings(u"Settings"_s);
    row.addWidget(&first, 0, 0, Qt::Alignment());
    row.addWidget(&settings, 1, 0, Qt::Alignment());
    row.addWidget(&second, 0, 0, Qt::Alignment());
    row.resize(720, 62);
    row.show();
    QCOMPARE(first.x(), 40);
    QCOMPARE(second.x(), first.geometry().right() + 1 + 8);
    QCOMPARE(settings.geometry().right() + 1, 720 - 40);
    row.hide();
    for (QWidget *const button : {&first, &second, &settings})
        button->setParent(nullptr);
}

void ControlBottomPanelTest::removedWidgetLeavesItsPlace() {
    ControlBottomPanel row;
    auto *const first = new CheckButton(u"PCM"_s, &row);
    auto *const second = new CheckButton(u"OTDR"_s, &row);
    row.addWidget(first, 0, 0, Qt::Alignment());
    row.addWidget(second, 0, 0, Qt::Alignment());
    row.resize(720, 62);
    row.show();
    row.removeWidget(first);
    delete first;
    QTRY_COMPARE(second->x(), 40);
}

void ControlBottomPanelTest::sevenLongLabelsDoNotWidenTheRow() {
    ControlBottomPanel row;
    for (int i = 0; i < 7; ++i)
        row.addWidget(new CheckButton(u"Передача данных"_s), i == 6, 0, Qt::Alignment());
    QVERIFY(row.minimumSizeHint().width() <= 720);
    row.resize(720, 62);
    row.show();
    for (const CheckButton *const button : row.findChildren<CheckButton *>()) {
        QVERIFY(button->x() >= 0);
        QVERIFY(button->geometry().right() < 720);
    }
}

void ControlBottomPanelTest::moreThanFitAreReachedByAThumb() {
    ControlBottomPanel row;
    const QList<CheckButton *> buttons = fill(row, 20);
    CheckButton *const first = buttons.first();
    CheckButton *const last = buttons.last();
    QVERIFY(last->geometry().right() > row.width());
    const QSignalSpy clicks(first, &CheckButton::clicked);
    QTest::mousePress(first, Qt::LeftButton);
    QTest::mouseMove(first, QPoint(-3000, 20));
    QTest::mouseRelease(first, Qt::LeftButton);
    QCOMPARE(last->geometry().right() + 1, row.width() - 40);
    QCOMPARE(clicks.count(), 0);
    QVERIFY(!first->isDown());
    QTest::mouseClick(last, Qt::LeftButton);
    QVERIFY(last->isChecked());
}

void ControlBottomPanelTest::checkedButtonComesIntoView() {
    ControlBottomPanel row;
    const QList<CheckButton *> buttons = fill(row, 20);
    QButtonGroup group;
    for (CheckButton *const button : buttons)
        group.addButton(button);
    buttons.at(15)->setChecked(true);
    QVERIFY(buttons.at(15)->geometry().right() < row.width());
    buttons.at(0)->setChecked(true);
    QVERIFY(buttons.at(0)->x() >= 0);
}

void ControlBottomPanelTest::buttonCheckedWhileHiddenIsInViewWhenShown() {
    ControlBottomPanel row;
    const QList<CheckButton *> buttons = fill(row, 20);
    row.hide();
    buttons.at(15)->setChecked(true);
    row.show();
    QVERIFY(buttons.at(15)->geometry().right() < row.width());
}

QTEST_MAIN(ControlBottomPanelTest)
#include "tst_controlbottompanel.moc"
