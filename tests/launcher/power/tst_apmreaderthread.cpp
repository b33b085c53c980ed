// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/apmreaderthread.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <memory>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

class ApmReaderThreadTest : public QObject {
    Q_OBJECT

private slots:
    void init();

    void firstLineIsAlwaysTold();
    void sameLineIsToldOnce();
    void changedLineIsTold();
    void fileThatComesLaterIsRead();
    void runningReaderPollsInTheGuiThread();
    void whatIsNoFileIsPassedOver_data();
    void whatIsNoFileIsPassedOver();
    void oddBytesAreRead_data();
    void oddBytesAreRead();
    void readerThatNeverRanEndsOrderly();

private:
    static QString proc() { return qEnvironmentVariable("ZR_SYSROOT") + "/proc"_L1; }
    static void write(const QByteArray &bytes) {
        QVERIFY(QDir().mkpath(proc()));
        QFile file(proc() + "/apm"_L1);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray lineWith(int percentage) {
        return "1.16 1.2 0x03 0x01 0x00 0x01 " + QByteArray::number(percentage) + "% -1 ?\n";
    }

    std::unique_ptr<ApmReaderThread> reader;
    QList<int> percentages;
    QThread *toldIn = nullptr;
};

void ApmReaderThreadTest::init() {
    QTest::failOnWarning(QRegularExpression(u"^QObject"_s));
    QDir(proc()).removeRecursively();
    percentages.clear();
    toldIn = nullptr;
    reader = std::make_unique<ApmReaderThread>();
    connect(reader.get(), &ApmReaderThread::newApmData, this, [this](const ApmInfo &info) {
        percentages.append(info.percentage);
        toldIn = QThread::currentThread();
    });
}

void ApmReaderThreadTest::firstLineIsAlwaysTold() {
    write(lineWith(50));
    QVERIFY(percentages.isEmpty());
    reader->parseApmInfo();
    QCOMPARE(percentages, QList<int>{50});
}

void ApmReaderThreadTest::sameLineIsToldOnce() {
    write(lineWith(50));
    reader->parseApmInfo();
    write("  " + lineWith(50) + "more lines\n");
    reader->parseApmInfo();
    QCOMPARE(percentages, QList<int>{50});
}

void ApmReaderThreadTest::changedLineIsTold() {
    write(lineWith(50));
    reader->parseApmInfo();
    write(lineWith(49));
    reader->parseApmInfo();
    write(lineWith(50));
    reader->parseApmInfo();
    QCOMPARE(percentages, QList<int>({50, 49, 50}));
}

void ApmReaderThreadTest::fileThatComesLaterIsRead() {
    reader->parseApmInfo();
    reader->parseApmInfo();
    QVERIFY(percentages.isEmpty());
    write(lineWith(7));
    reader->parseApmInfo();
    QCOMPARE(percentages, QList<int>{7});
}

void ApmReaderThreadTest::runningReaderPollsInTheGuiThread() {
    write(lineWith(30));
    QElapsedTimer timer;
    timer.start();
    reader->start();
    QTRY_COMPARE(percentages, QList<int>{30});
    QVERIFY2(timer.elapsed() >= 1900, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(toldIn, QThread::currentThread());
    write(lineWith(29));
    QTRY_COMPARE(percentages, QList<int>({30, 29}));
}

void ApmReaderThreadTest::whatIsNoFileIsPassedOver_data() {
    QTest::addColumn<QString>("kind");
    QTest::newRow("directory") << u"directory"_s;
    QTest::newRow("pipe that nobody writes to") << u"pipe"_s;
    QTest::newRow("dangling link") << u"link"_s;
}

void ApmReaderThreadTest::whatIsNoFileIsPassedOver() {
    QFETCH(QString, kind);
    QVERIFY(QDir().mkpath(proc()));
    const QString path = proc() + "/apm"_L1;
    if (kind == "directory"_L1)
        QVERIFY(QDir().mkpath(path));
    else if (kind == "pipe"_L1)
        QCOMPARE(::mkfifo(path.toLocal8Bit().constData(), 0600), 0);
    else
        QVERIFY(QFile::link(u"/nowhere/at/all"_s, path));
    reader->parseApmInfo();
    QVERIFY(percentages.isEmpty());
}

void ApmReaderThreadTest::oddBytesAreRead_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("percentage");
    QTest::newRow("no line end") << lineWith(12).trimmed() << 12;
    QTest::newRow("carriage return") << lineWith(12).trimmed() + "\r\n" << 12;
    QTest::newRow("NULs") << QByteArray(100, '\0') << 0;
    QTest::newRow("bytes that are no UTF-8") << QByteArray("\xff\xfe a b c d e f 9%") << 0;
    QTest::newRow("a megabyte without a line end") << QByteArray(1024 * 1024, 'x') << 0;
}

void ApmReaderThreadTest::oddBytesAreRead() {
    QFETCH(QByteArray, bytes);
    QFETCH(int, percentage);
    write(bytes);
    reader->parseApmInfo();
    QCOMPARE(percentages, QList<int>{percentage});
}

void ApmReaderThreadTest::readerThatNeverRanEndsOrderly() {
    reader.reset();
    ApmReaderThread running;
    running.start();
}

QTEST_GUILESS_MAIN(ApmReaderThreadTest)
#include "tst_apmreaderthread.moc"
