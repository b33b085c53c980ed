// SPDX-License-Identifier: GPL-3.0-or-later
#include "rsyncprogress.h"

#include <QTest>

class RsyncProgressTest : public QObject {
    Q_OBJECT

private slots:
    void nothingIsKnownAtFirst();
    void totalIsToldBeforeTheFirstFile();
    void entriesAreCountedWhenAFileIsDone();
    void longFileMovesTheCountWithinItsEntry();
    void otherLinesTellNothing_data();
    void otherLinesTellNothing();
};

void RsyncProgressTest::nothingIsKnownAtFirst() {
    const RsyncProgress progress;
    QCOMPARE(progress.left(), 0);
    QCOMPARE(progress.total(), 0);
}

void RsyncProgressTest::totalIsToldBeforeTheFirstFile() {
    RsyncProgress progress;
    QVERIFY(progress.read("7 files to consider"));
    QCOMPARE(progress.left(), 700);
    QCOMPARE(progress.total(), 700);
    QVERIFY(progress.read("1 file to consider"));
    QCOMPARE(progress.total(), 100);
}

void RsyncProgressTest::entriesAreCountedWhenAFileIsDone() {
    RsyncProgress progress;
    QVERIFY(progress.read("              2 100%    1.95kB/s    0:00:00 (xfr#2, to-chk=4/7)"));
    QCOMPARE(progress.left(), 400);
    QCOMPARE(progress.total(), 700);
    QVERIFY(progress.read("    314,572,800 100%  133.45MB/s    0:00:02 (xfr#4, to-chk=0/7)"));
    QCOMPARE(progress.left(), 0);
}

void RsyncProgressTest::longFileMovesTheCountWithinItsEntry() {
    RsyncProgress progress;
    progress.read("3 files to consider");
    QVERIFY(progress.read("         32,768   0%   31.25MB/s    0:00:09  "));
    QCOMPARE(progress.left(), 300);
    QVERIFY(progress.read("    146,866,176  46%  140.06MB/s    0:00:01  "));
    QCOMPARE(progress.left(), 254);
    QVERIFY(progress.read("    146,866,176 100%  140.06MB/s    0:00:01  "));
    QCOMPARE(progress.left(), 200);
    QVERIFY(progress.read("    146,866,176 100%  140.06MB/s    0:00:01 (xfr#1, to-chk=1/3)"));
    QCOMPARE(progress.left(), 100);
}

void RsyncProgressTest::otherLinesTellNothing_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("words") << QByteArray("building file list ... ");
    QTest::newRow("more done than there is") << QByteArray("2 100% 1.95kB/s 0:00:00 (xfr#2, to-chk=8/7)");
    QTest::newRow("number too large") << QByteArray("2 100% 1.95kB/s 0:00:00 (xfr#2, to-chk=1/99999999999)");
    QTest::newRow("total that would overflow") << QByteArray("21474837 files to consider");
    QTest::newRow("percentage too large") << QByteArray("2 101% 1.95kB/s 0:00:00");
    QTest::newRow("a file's name") << QByteArray("skipping non-regular file \"a (xfr#2, to-chk=0/7)\"");
    QTest::newRow("text behind") << QByteArray("2 100% 1.95kB/s 0:00:00 (xfr#2, to-chk=4/7) x");
    QTest::newRow("NUL") << QByteArray("7 files\0 to consider", 20);
    QTest::newRow("no ASCII") << QByteArray("\xff\xfe 100% 1kB/s 0:00:00");
}

void RsyncProgressTest::otherLinesTellNothing() {
    QFETCH(QByteArray, line);
    RsyncProgress progress;
    progress.read("3 files to consider");
    QVERIFY(!progress.read(line));
    QCOMPARE(progress.left(), 300);
    QCOMPARE(progress.total(), 300);
}

QTEST_GUILESS_MAIN(RsyncProgressTest)
#include "tst_rsyncprogress.moc"
