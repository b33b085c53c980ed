// SPDX-License-Identifier: GPL-3.0-or-later
#include "processorname.h"

#include <QTest>

class ProcessorNameTest : public QObject {
    Q_OBJECT

private slots:
    void nameIsFound_data();
    void nameIsFound();
};

void ProcessorNameTest::nameIsFound_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("x86, marks and clock rate left out")
        << QByteArray("processor\t: 0\nmodel name\t: Maker(R) Type(TM) CPU E5 v4 @ 2.30GHz\n")
        << "Maker Type E5 v4";
    QTest::newRow("the first processor stands for all")
        << QByteArray("model name: One\n\nmodel name: Other\n") << "One";
    QTest::newRow("32-bit ARM") << QByteArray("Processor\t: ARMv7 Processor rev 10 (v7l)\nHardware : Board\n")
                                << "ARMv7 Processor rev 10 (v7l)";
    QTest::newRow("a number of a processor is no name")
        << QByteArray("processor : 0\nBogoMIPS : 50\nHardware : Board X\n") << "Board X";
    QTest::newRow("MIPS") << QByteArray("cpu model : MIPS 24Kc V7.4\n") << "MIPS 24Kc V7.4";
    QTest::newRow("64-bit ARM gives none") << QByteArray("processor : 0\nCPU part : 0xd08\n") << QString();
    QTest::newRow("only marks give none") << QByteArray("model name : CPU @ 3 GHz\n") << QString();
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("cut off") << QByteArray("model na") << QString();
    QTest::newRow("binary") << QByteArray("\0\xff:\xfe\n", 5) << QString();
    QTest::newRow("huge") << QByteArray(1 << 20, ':') << QString();
}

void ProcessorNameTest::nameIsFound() {
    QFETCH(const QByteArray, text);
    QTEST(processorNameIn(text), "name");
}

QTEST_GUILESS_MAIN(ProcessorNameTest)
#include "tst_processorname.moc"
