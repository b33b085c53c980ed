// SPDX-License-Identifier: GPL-3.0-or-later
#include "datatable.h"

#include <QScrollBar>
#include <QStandardItemModel>
#include <QTest>

class DataTableTest : public QObject {
    Q_OBJECT

private slots:
    void init();
    void rowsAreHighEnoughForAThumb();
    void stretchedColumnTakesTheRest();
    void arrowKeysChooseRows();
    void arrowKeysScrollWhereNothingCanBeChosen();
    void tabLeavesTheTable();

private:
    std::unique_ptr<QStandardItemModel> model;
    std::unique_ptr<DataTable> table;
};

void DataTableTest::init() {
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^QObject::connect")));
    model = std::make_unique<QStandardItemModel>(100, 2);
    table = std::make_unique<DataTable>();
    table->setModel(model.get());
    table->resize(688, 400);
    table->show();
}

void DataTableTest::rowsAreHighEnoughForAThumb() {
    QVERIFY(table->rowHeight(0) >= 52);
}

void DataTableTest::stretchedColumnTakesTheRest() {
    table->setColumnWidths({0, 120});
    QTRY_COMPARE(table->columnWidth(0) + table->columnWidth(1), table->viewport()->width());
    QCOMPARE(table->columnWidth(1), 120);
}

void DataTableTest::arrowKeysChooseRows() {
    table->selectRow(0);
    QTest::keyClick(table.get(), Qt::Key_Down);
    QCOMPARE(table->selectionModel()->selectedRows().first().row(), 1);
}

void DataTableTest::arrowKeysScrollWhereNothingCanBeChosen() {
    table->setRowsSelectable(false);
    QTest::keyClick(table.get(), Qt::Key_Down);
    const int scrolled = table->verticalScrollBar()->value();
    QVERIFY(scrolled > 0);
    QVERIFY(!table->selectionModel()->hasSelection());
    QTest::keyClick(table.get(), Qt::Key_Up);
    QVERIFY(table->verticalScrollBar()->value() < scrolled);
}

void DataTableTest::tabLeavesTheTable() {
    QVERIFY(!table->tabKeyNavigation());
}

QTEST_MAIN(DataTableTest)
#include "tst_datatable.moc"
