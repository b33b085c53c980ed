// SPDX-License-Identifier: GPL-3.0-or-later
#include "boundedread.h"
#include "filetree.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class BoundedReadTest : public QObject {
    Q_OBJECT

private slots:
    void wholeFileBelowTheBound();
    void longFileIsCutAtTheBound();
    void kernelFileWithoutASizeIsRead();
    void missingFileIsEmpty();
    void directoryIsEmpty();
};

void BoundedReadTest::wholeFileBelowTheBound() {
    const FileTree tree;
    tree.write(u"short"_s, "abc");
    QCOMPARE(boundedRead(tree.path(u"short"_s), 10), "abc"_ba);
}

void BoundedReadTest::longFileIsCutAtTheBound() {
    const FileTree tree;
    tree.write(u"long"_s, QByteArray(1000, 'x'));
    QCOMPARE(boundedRead(tree.path(u"long"_s), 10), QByteArray(10, 'x'));
}

void BoundedReadTest::kernelFileWithoutASizeIsRead() {
    QVERIFY(boundedRead(u"/proc/self/status"_s, 10'000).startsWith("Name:"));
}

void BoundedReadTest::missingFileIsEmpty() {
    QVERIFY(boundedRead(u"/nowhere/at/all"_s, 10).isEmpty());
}

void BoundedReadTest::directoryIsEmpty() {
    QVERIFY(boundedRead(u"/"_s, 10).isEmpty());
}

QTEST_GUILESS_MAIN(BoundedReadTest)
#include "tst_boundedread.moc"
