// SPDX-License-Identifier: GPL-3.0-or-later
#include "statuspanel.h"

#include <QLabel>
#include <QLayout>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class StatusPanelTest : public QObject {
    Q_OBJECT

private slots:
    void emptyPanelHasOneChildItsLayout();
    void pictureIsNoChild();
    void childrenAreLaidOutBelowEachOther();
    void widgetsPutUnderItAreLaidOutToo();
    void widgetsTakenAwayLeaveTheLayout();
    void addedWidgetStandsOnceInTheLayout();
    void panelOpensBesideTheCallerInsideTheWindow();
    void escapeCloses();
    void pressOutsideCloses();
    void panelIsAtLeastAsWideAsAsked();
};

void StatusPanelTest::emptyPanelHasOneChildItsLayout() {
    const StatusPanel panel(nullptr, 250);
    QCOMPARE(panel.children().size(), 1);
    QCOMPARE(panel.children().first(), panel.layout());
}

void StatusPanelTest::pictureIsNoChild() {
    StatusPanel panel(nullptr, 250);
    panel.setPixmap(QPixmap(36, 36));
    QCOMPARE(panel.children().size(), 1);
    const int withPicture = panel.layout()->contentsMargins().top();
    panel.setPixmap(QPixmap());
    QVERIFY(panel.layout()->contentsMargins().top() < withPicture);
}

void StatusPanelTest::childrenAreLaidOutBelowEachOther() {
    StatusPanel panel(nullptr, 250);
    auto *const first = new QLabel(u"first"_s, &panel);
    auto *const second = new QLabel(u"second"_s, &panel);
    panel.show();
    QVERIFY(first->isVisible());
    QVERIFY(second->y() > first->y());
    QCOMPARE(panel.layout()->count(), 2);
}

void StatusPanelTest::widgetsPutUnderItAreLaidOutToo() {
    StatusPanel panel(nullptr, 250);
    auto *const label = new QLabel(u"text"_s);
    label->setParent(&panel);
    label->show();
    QCOMPARE(panel.layout()->indexOf(label), 0);
}

void StatusPanelTest::widgetsTakenAwayLeaveTheLayout() {
    StatusPanel panel(nullptr, 250);
    QLabel label(u"text"_s);
    label.setParent(&panel);
    label.setParent(nullptr);
    QCOMPARE(panel.layout()->count(), 0);
    QCOMPARE(panel.children().size(), 1);
}

void StatusPanelTest::addedWidgetStandsOnceInTheLayout() {
    StatusPanel panel(nullptr, 250);
    auto *const label = new QLabel(u"text"_s);
    panel.addToLayout(label);
    panel.addToLayout(label);
    QCOMPARE(label->parentWidget(), &panel);
    QCOMPARE(panel.layout()->count(), 1);
}

void StatusPanelTest::panelOpensBesideTheCallerInsideTheWindow() {
    QWidget window;
    window.setGeometry(0, 0, 800, 480);
    window.show();
    StatusPanel panel(&window, 400);
    new QLabel(u"text"_s, &panel);
    const QRect caller(2, 430, 74, 46);
    panel.invoke(caller);
    QVERIFY(panel.isVisible());
    QVERIFY(panel.geometry().center().x() > caller.right());
    QVERIFY(panel.frameGeometry().bottom() <= 480 + 10);
    panel.hide();
}

void StatusPanelTest::escapeCloses() {
    StatusPanel panel(nullptr, 100);
    panel.invoke(QRect(0, 0, 10, 10));
    QTest::keyClick(&panel, Qt::Key_Escape);
    QVERIFY(!panel.isVisible());
}

void StatusPanelTest::pressOutsideCloses() {
    StatusPanel panel(nullptr, 100);
    panel.invoke(QRect(100, 100, 10, 10));
    QTest::mouseClick(&panel, Qt::LeftButton, {}, QPoint(-50, -50));
    QVERIFY(!panel.isVisible());
}

void StatusPanelTest::panelIsAtLeastAsWideAsAsked() {
    StatusPanel panel(nullptr, 400);
    new QLabel(u"x"_s, &panel);
    panel.doResize();
    QVERIFY(panel.width() >= 400);
}

QTEST_MAIN(StatusPanelTest)
#include "tst_statuspanel.moc"
