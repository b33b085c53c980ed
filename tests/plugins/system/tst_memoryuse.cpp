// SPDX-License-Identifier: GPL-3.0-or-later
#include "memoryuse.h"

#include <QTest>

class MemoryUseTest : public QObject {
    Q_OBJECT

private slots:
    void usedAndTotalAreRead_data();
    void usedAndTotalAreRead();
    void textWithoutATotalHasNone_data();
    void textWithoutATotalHasNone();
};

void MemoryUseTest::usedAndTotalAreRead_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<quint64>("used");
    QTest::newRow("what is available is not used")
        << QByteArray("MemTotal:  1000 kB\nMemFree: 100 kB\nMemAvailable:  600 kB\n") << quint64(400 * 1024);
    QTest::newRow("old kernel: caches count as free")
        << QByteArray("MemTotal: 1000 kB\nMemFree: 100 kB\nBuffers: 50 kB\nCached: 250 kB\n")
        << quint64(600 * 1024);
    QTest::newRow("more available than there is")
        << QByteArray("MemTotal: 1000 kB\nMemAvailable: 9999 kB\n") << quint64(0);
    QTest::newRow("cut off after the total")
        << QByteArray("MemTotal: 1000 kB\nMemAv") << quint64(1000 * 1024);
}

void MemoryUseTest::usedAndTotalAreRead() {
    QFETCH(const QByteArray, text);
    const std::optional<MemoryUse> memory = memoryUseIn(text);
    QVERIFY(memory);
    QCOMPARE(memory->total, quint64(1000 * 1024));
    QTEST(memory->used, "used");
}

void MemoryUseTest::textWithoutATotalHasNone_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("total is missing") << QByteArray("MemFree: 100 kB\n");
    QTest::newRow("total is 0") << QByteArray("MemTotal: 0 kB\n");
    QTest::newRow("total is a word") << QByteArray("MemTotal: much kB\n");
    QTest::newRow("no colon") << QByteArray("MemTotal 1000 kB\n");
    QTest::newRow("binary") << QByteArray("\0:\xff\n:\n", 6);
    QTest::newRow("huge line") << QByteArray(1 << 20, 'M');
}

void MemoryUseTest::textWithoutATotalHasNone() {
    QFETCH(const QByteArray, text);
    QVERIFY(!memoryUseIn(text));
}

QTEST_GUILESS_MAIN(MemoryUseTest)
#include "tst_memoryuse.moc"
