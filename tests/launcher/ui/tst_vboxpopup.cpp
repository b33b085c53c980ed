// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vboxpopup.h"

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

namespace {

class HintedWidget : public QWidget {
public:
    HintedWidget(int hintWidth, int minimumHeight) : hint(hintWidth) { setMinimumHeight(minimumHeight); }
    QSize sizeHint() const override { return {hint, 30}; }

private:
    int hint;
};

} // namespace

class VBoxPopupTest : public QObject {
    Q_OBJECT

private slots:
    void sizeIsLimitedByTheWidgets_data();
    void sizeIsLimitedByTheWidgets();
    void widgetsStandBelowEachOther();
    void staysWithinItsLimits();
    void nothingHappensWithoutCaller();
};

void VBoxPopupTest::sizeIsLimitedByTheWidgets_data() {
    QTest::addColumn<QList<int>>("hints");
    QTest::addColumn<QSize>("largest");
    QTest::newRow("nothing") << QList<int>() << QSize(140, 0);
    QTest::newRow("narrow") << QList<int>{50, 93} << QSize(140, 2 * 61);
    QTest::newRow("wide") << QList<int>{200} << QSize(300, 61);
    QTest::newRow("half a pixel is cut off") << QList<int>{101} << QSize(151, 61);
    QTest::newRow("the widest counts") << QList<int>{100, 300, 200} << QSize(450, 183);
}

void VBoxPopupTest::sizeIsLimitedByTheWidgets() {
    QFETCH(QList<int>, hints);
    QFETCH(QSize, largest);
    QList<QWidget *> widgets;
    for (const int hint : hints)
        widgets.append(new HintedWidget(hint, 52));
    const VBoxPopup popup(widgets, nullptr, nullptr);
    QCOMPARE(popup.maximumSize(), largest);
}

void VBoxPopupTest::widgetsStandBelowEachOther() {
    const QList<QWidget *> widgets{new HintedWidget(10, 52), new HintedWidget(20, 40)};
    const VBoxPopup popup(widgets, nullptr, nullptr);
    const auto *const box = qobject_cast<QVBoxLayout *>(popup.layout());
    QVERIFY(box);
    QCOMPARE(box->spacing(), 5);
    QCOMPARE(box->count(), 2);
    QCOMPARE(box->itemAt(0)->widget(), widgets.at(0));
    QCOMPARE(box->itemAt(1)->widget(), widgets.at(1));
    QCOMPARE(box->stretch(0), 0);
    QCOMPARE(box->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(popup.maximumHeight(), 52 + 40 + 2 * (5 + 4));
}

void VBoxPopupTest::staysWithinItsLimits() {
    QWidget window;
    window.setGeometry(0, 0, 800, 480);
    window.show();
    QWidget caller(&window);
    caller.setGeometry(2, 400, 70, 46);
    caller.show();
    auto *const narrow = new QPushButton;
    narrow->setMinimumSize(140, 52);
    VBoxPopup popup({narrow}, &caller, &window);
    popup.show();
    QVERIFY(popup.isVisible());
    QCOMPARE(popup.width(), 140);
    QCOMPARE(narrow->width(), 140);
    QVERIFY(popup.height() <= 61);
    QVERIFY(popup.x() > 72);
}

void VBoxPopupTest::nothingHappensWithoutCaller() {
    VBoxPopup popup({new HintedWidget(10, 52)}, nullptr, nullptr);
    popup.show();
    QVERIFY(popup.isHidden());
}

QTEST_MAIN(VBoxPopupTest)
#include "tst_vboxpopup.moc"
