// SPDX-License-Identifier: GPL-3.0-or-later
#include "storagemodel.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class StorageModelTest : public QObject {
    Q_OBJECT

private slots:
    void rowTellsOneFileSystem();
    void newFiguresDoNotMoveTheTable();
    void mountedDriveAddsARow();
    void figuresStandAtTheRight();

private:
    static MountedVolume volume(const QString &directory, quint64 used);
};

MountedVolume StorageModelTest::volume(const QString &directory, quint64 used) {
    return {{u"/dev/sda1"_s, directory, u"ext4"_s}, {4'000'000, used, 1'000'000, 1}};
}

void StorageModelTest::rowTellsOneFileSystem() {
    StorageModel model;
    const QAbstractItemModelTester tester(&model);
    model.show({volume(u"/home"_s, 2'000'000)});
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column)
        texts.append(model.index(0, column).data().toString());
    QCOMPARE(texts, QStringList({u"/home"_s, u"50%"_s, u"2.0 MB"_s, u"4.0 MB"_s, u"1.0 MB"_s}));
}

void StorageModelTest::newFiguresDoNotMoveTheTable() {
    StorageModel model;
    model.show({volume(u"/"_s, 1)});
    const QSignalSpy resets(&model, &StorageModel::modelReset);
    model.show({volume(u"/"_s, 999)});
    QCOMPARE(resets.count(), 0);
    QCOMPARE(model.index(0, StorageModel::Used).data().toString(), u"999 B"_s);
}

void StorageModelTest::mountedDriveAddsARow() {
    StorageModel model;
    model.show({volume(u"/"_s, 1)});
    model.show({volume(u"/"_s, 1), volume(u"/media/drive"_s, 2)});
    QCOMPARE(model.rowCount(), 2);
}

void StorageModelTest::figuresStandAtTheRight() {
    StorageModel model;
    model.show({volume(u"/"_s, 1)});
    QCOMPARE(model.index(0, StorageModel::Free).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight));
    QCOMPARE(model.headerData(StorageModel::Free, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignRight));
}

QTEST_GUILESS_MAIN(StorageModelTest)
#include "tst_storagemodel.moc"
