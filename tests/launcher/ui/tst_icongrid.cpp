// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/icongrid.h"

#include <QGridLayout>
#include <QTest>
#include <QWidget>

class IconGridTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        page = std::make_unique<QWidget>();
        grid = IconGrid::makeButtonsLayout();
        page->setLayout(grid);
        IconGrid::initGrid(grid, &window);
    }

    void pageHasTenEmptyCells();
    void iconTakesItsCell();
    void iconSpansTheRowsItAsksFor_data();
    void iconSpansTheRowsItAsksFor();
    void cellFarOutsideMovesToTheFirstFreeOne_data();
    void cellFarOutsideMovesToTheFirstFreeOne();
    void elevenIconsWithoutACellMakeASixthRow();
    void laterIconTakesTheCellAndHidesTheEarlier();
    void moreRowsThanThePageHasAreGiven();

private:
    QWidget *newIcon(int rows = 0) {
        auto *const icon = new QWidget(page.get());
        icon->setProperty("rows", rows);
        return icon;
    }
    QWidget *at(int row, int column) const {
        const QLayoutItem *const item = grid->itemAtPosition(row, column);
        return item ? item->widget() : nullptr;
    }

    QWidget window;
    std::unique_ptr<QWidget> page;
    QGridLayout *grid = nullptr;
};

void IconGridTest::pageHasTenEmptyCells() {
    QCOMPARE(grid->count(), 10);
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 2);
    QCOMPARE(grid->horizontalSpacing(), 40);
    QCOMPARE(grid->verticalSpacing(), 8);
    QCOMPARE(grid->contentsMargins(), QMargins(40, 6, 40, 6));
    QCOMPARE(grid->columnStretch(0), 1);
    QCOMPARE(grid->columnStretch(1), 1);
    for (int index = 0; index < grid->count(); ++index)
        QCOMPARE(grid->itemAt(index)->widget()->parentWidget(), page.get());
}

void IconGridTest::iconTakesItsCell() {
    QWidget *const icon = newIcon();
    const IconGrid::Placement placement = IconGrid::place(grid, icon, 2, 1);
    QCOMPARE(at(2, 1), icon);
    QVERIFY(!placement.wasMoved);
    QVERIFY(placement.replacedIcons.isEmpty());
    QCOMPARE(grid->count(), 10);
}

void IconGridTest::iconSpansTheRowsItAsksFor_data() {
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("spanned");
    QTest::newRow("absent or 0 is one") << 0 << 1;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("three") << 3 << 3;
    QTest::newRow("negative is one") << -7 << 1;
    QTest::newRow("more than any page can have") << 2'000'000'000 << 10;
}

void IconGridTest::iconSpansTheRowsItAsksFor() {
    QFETCH(int, rows);
    QFETCH(int, spanned);
    QWidget *const icon = newIcon(rows);
    IconGrid::place(grid, icon, 1, 0);
    int atRow = 0, atColumn = 0, rowSpan = 0, columnSpan = 0;
    grid->getItemPosition(grid->indexOf(icon), &atRow, &atColumn, &rowSpan, &columnSpan);
    QCOMPARE(QRect(atColumn, atRow, columnSpan, rowSpan), QRect(0, 1, 1, spanned));
    // The placeholders below it are gone, those beside it stay.
    QCOMPARE(grid->count(), 10 - qMin(spanned, 4) + 1);
    QVERIFY(at(1, 1) && at(1, 1) != icon);
}

void IconGridTest::cellFarOutsideMovesToTheFirstFreeOne_data() {
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("column");
    QTest::newRow("absent row") << -1 << 0;
    QTest::newRow("absent column") << 0 << -1;
    QTest::newRow("row far below") << 1'000'000 << 0;
    QTest::newRow("column far right") << 0 << 1'000'000;
    QTest::newRow("smallest number") << std::numeric_limits<int>::min() << 0;
    QTest::newRow("largest number") << std::numeric_limits<int>::max() << 1;
}

void IconGridTest::cellFarOutsideMovesToTheFirstFreeOne() {
    QFETCH(int, row);
    QFETCH(int, column);
    IconGrid::place(grid, newIcon(), 0, 0);
    QWidget *const icon = newIcon();
    const IconGrid::Placement placement = IconGrid::place(grid, icon, row, column);
    QVERIFY(placement.wasMoved);
    QCOMPARE(at(0, 1), icon);
    QCOMPARE(grid->rowCount(), 5);
    QCOMPARE(grid->columnCount(), 2);
}

void IconGridTest::elevenIconsWithoutACellMakeASixthRow() {
    QList<QWidget *> icons;
    for (int i = 0; i < 11; ++i) {
        icons.append(newIcon());
        IconGrid::place(grid, icons.last(), -1, -1);
    }
    QCOMPARE(at(5, 0), icons.last());
    QCOMPARE(at(4, 1), icons.at(9));
}

void IconGridTest::laterIconTakesTheCellAndHidesTheEarlier() {
    QWidget *const earlier = newIcon();
    QWidget *const later = newIcon();
    IconGrid::place(grid, earlier, 0, 0);
    page->show();
    QVERIFY(earlier->isVisible());
    const IconGrid::Placement placement = IconGrid::place(grid, later, 0, 0);
    QCOMPARE(placement.replacedIcons, QList<QWidget *>{earlier});
    QCOMPARE(at(0, 0), later);
    QVERIFY(!earlier->isVisible());
    QCOMPARE(grid->indexOf(earlier), -1);
}

void IconGridTest::moreRowsThanThePageHasAreGiven() {
    QWidget *const icon = newIcon();
    const IconGrid::Placement placement = IconGrid::place(grid, icon, 6, 1);
    QVERIFY(!placement.wasMoved);
    QCOMPARE(at(6, 1), icon);
}

QTEST_MAIN(IconGridTest)
#include "tst_icongrid.moc"
