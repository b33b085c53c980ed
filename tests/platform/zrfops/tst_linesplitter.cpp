// SPDX-License-Identifier: GPL-3.0-or-later
#include "linesplitter.h"

#include <QTest>

class LineSplitterTest : public QObject {
    Q_OBJECT

private slots:
    void linesEndAtLineFeedsAndCarriageReturns();
    void lineMayComeInPieces();
    void tooLongALineIsDroppedAndTheNextIsRead();
};

void LineSplitterTest::linesEndAtLineFeedsAndCarriageReturns() {
    QCOMPARE(LineSplitter().add("a\rb\n\r\nc\rrest"), QList<QByteArray>({"a", "b", "c"}));
}

void LineSplitterTest::lineMayComeInPieces() {
    LineSplitter splitter;
    QCOMPARE(splitter.add("ab"), QList<QByteArray>());
    QCOMPARE(splitter.add("c"), QList<QByteArray>());
    QCOMPARE(splitter.unfinished(), "abc");
    QCOMPARE(splitter.add("\nd\n"), QList<QByteArray>({"abc", "d"}));
}

void LineSplitterTest::tooLongALineIsDroppedAndTheNextIsRead() {
    LineSplitter splitter;
    for (int i = 0; i < 100; ++i)
        QCOMPARE(splitter.add(QByteArray(LineSplitter::longestLine / 10, 'x')), QList<QByteArray>());
    QCOMPARE(splitter.add("end\nnext\n"), QList<QByteArray>({"next"}));
    const QByteArray longest(LineSplitter::longestLine, 'y');
    QCOMPARE(splitter.add(longest + '\n'), QList<QByteArray>({longest}));
}

QTEST_GUILESS_MAIN(LineSplitterTest)
#include "tst_linesplitter.moc"
