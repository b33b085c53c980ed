// SPDX-License-Identifier: GPL-3.0-or-later
#include "linesdelegate.h"

#include <QPainter>
#include <QStandardItemModel>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class LinesDelegateTest : public QObject {
    Q_OBJECT

private slots:
    void rowGrowsWithItsLines_data();
    void rowGrowsWithItsLines();
    void textStaysInsideItsCell();
    void hairlineLiesUnderTheRow();

private:
    static QImage drawn(const QModelIndex &index, const QRect &cell);
};

QImage LinesDelegateTest::drawn(const QModelIndex &index, const QRect &cell) {
    QImage picture(cell.width() + 2 * cell.x(), cell.height() + 2 * cell.y(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.palette.setColor(QPalette::Mid, Qt::red);
    option.palette.setColor(QPalette::Text, Qt::black);
    QPainter painter(&picture);
    LinesDelegate().paint(&painter, option, index);
    return picture;
}

void LinesDelegateTest::rowGrowsWithItsLines_data() {
    QTest::addColumn<QString>("strong");
    QTest::addColumn<QStringList>("small");
    QTest::addColumn<int>("height");
    QTest::newRow("empty: a thumb's height") << QString() << QStringList() << 52;
    QTest::newRow("one strong line") << "eth0" << QStringList() << 52;
    QTest::newRow("strong and small line") << "eth0" << QStringList{u"Up"_s} << 60;
    QTest::newRow("four small lines") << QString() << QStringList(4, u"address"_s) << 96;
}

void LinesDelegateTest::rowGrowsWithItsLines() {
    QFETCH(const QString, strong);
    QFETCH(const QStringList, small);
    QStandardItem *const item = new QStandardItem(strong);
    item->setData(small, LinesDelegate::SmallLines);
    QStandardItemModel model;
    model.appendRow(item);
    QTEST(LinesDelegate().sizeHint({}, item->index()).height(), "height");
}

void LinesDelegateTest::textStaysInsideItsCell() {
    QStandardItemModel model;
    model.appendRow(new QStandardItem(QString(300, u'W')));
    const QImage picture = drawn(model.index(0, 0), QRect(50, 0, 100, 52));
    for (int y = 0; y < picture.height(); ++y) {
        for (const int x : {20, 49, 150, 180})
            QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
    }
}

void LinesDelegateTest::hairlineLiesUnderTheRow() {
    QStandardItemModel model(1, 1);
    const QImage picture = drawn(model.index(0, 0), QRect(0, 0, 100, 52));
    QCOMPARE(picture.pixelColor(50, 51), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(50, 50), QColor(Qt::white));
}

QTEST_MAIN(LinesDelegateTest)
#include "tst_linesdelegate.moc"
