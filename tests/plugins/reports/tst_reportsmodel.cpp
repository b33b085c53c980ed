// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportsmodel.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReportsModelTest : public QObject {
    Q_OBJECT

private slots:
    void rowTellsTheFile();
    void filesAreFoundByName();
    void figuresStandAtTheRight();
};

void ReportsModelTest::rowTellsTheFile() {
    ReportsModel model;
    const QAbstractItemModelTester tester(&model);
    model.show({{"two\nlines", 2500, QDateTime(QDate(2026, 11, 21), QTime(14, 32))}});
    QCOMPARE(model.rowCount(), 1);
    QCOMPARE(model.index(0, ReportsModel::Name).data().toString(), u"two\uFFFDlines"_s);
    QCOMPARE(model.index(0, ReportsModel::Size).data().toString(), u"2.5 kB"_s);
    QVERIFY(model.index(0, ReportsModel::Date).data().toString().contains("14:32"_L1));
}

void ReportsModelTest::filesAreFoundByName() {
    ReportsModel model;
    model.show({{"one", 1, {}}, {"two", 2, {}}});
    QCOMPARE(model.rowOf("two"), 1);
    QCOMPARE(model.rowOf("three"), -1);
    QCOMPARE(model.nameAt(1), "two"_ba);
    QVERIFY(model.nameAt(7).isEmpty());
}

void ReportsModelTest::figuresStandAtTheRight() {
    ReportsModel model;
    model.show({{"one", 1, {}}});
    QCOMPARE(model.index(0, ReportsModel::Size).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
    QCOMPARE(model.index(0, ReportsModel::Name).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignLeft));
}

QTEST_GUILESS_MAIN(ReportsModelTest)
#include "tst_reportsmodel.moc"
