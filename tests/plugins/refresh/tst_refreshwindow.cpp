// SPDX-License-Identifier: GPL-3.0-or-later
#include "refreshwindow.h"

#include <refreshrate.h>

#include <QAbstractButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class RefreshWindowTest : public QObject {
    Q_OBJECT

private slots:
    void init() { QTest::failOnWarning(QRegularExpression(u"^QObject::connect"_s)); }
    void storedChoiceIsShown_data();
    void storedChoiceIsShown();
    void tapStoresTheChoice();
    void enterStoresTheChoice();
    void buttonsAreHighEnoughForAThumb();
};

void RefreshWindowTest::storedChoiceIsShown_data() {
    QTest::addColumn<int>("stored");
    QTest::addColumn<int>("button");
    QTest::newRow("one second") << 1 << 0;
    QTest::newRow("two seconds") << 2 << 1;
    QTest::newRow("five seconds") << 5 << 2;
}

void RefreshWindowTest::storedChoiceIsShown() {
    QFETCH(const int, stored);
    QFETCH(const int, button);
    RefreshRate::store(std::chrono::seconds(stored));
    RefreshWindow window;
    window.show();
    QVERIFY(window.findChildren<QAbstractButton *>().at(button)->isChecked());
}

void RefreshWindowTest::tapStoresTheChoice() {
    RefreshWindow window;
    window.show();
    QTest::mouseClick(window.findChildren<QAbstractButton *>().at(2), Qt::LeftButton);
    QCOMPARE(RefreshRate::configured(), 5s);
}

void RefreshWindowTest::enterStoresTheChoice() {
    RefreshWindow window;
    window.show();
    QTest::keyClick(window.findChildren<QAbstractButton *>().at(1), Qt::Key_Return);
    QCOMPARE(RefreshRate::configured(), 2s);
}

void RefreshWindowTest::buttonsAreHighEnoughForAThumb() {
    RefreshWindow window;
    window.show();
    for (const QAbstractButton *const button : window.findChildren<QAbstractButton *>())
        QVERIFY(button->height() >= 52);
}

QTEST_MAIN(RefreshWindowTest)
#include "tst_refreshwindow.moc"
