// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetext.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FileTextTest : public QObject {
    Q_OBJECT

private slots:
    void textIsRecognised_data();
    void textIsRecognised();
    void otherBytesAreNoText_data();
    void otherBytesAreNoText();
    void dumpShowsOffsetBytesAndCharacters();
    void longLinesAreBroken_data();
    void longLinesAreBroken();
};

void FileTextTest::textIsRecognised_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("plain lines") << QByteArray("a\tb\r\nc\n") << u"a\tb\r\nc\n"_s;
    QTest::newRow("UTF-8") << u"Отчёт №4"_s.toUtf8() << u"Отчёт №4"_s;
    QTest::newRow("UTF-8 with its mark") << QByteArray("\xef\xbb\xbf"
                                                       "a")
                                         << u"a"_s;
    QTest::newRow("UTF-8 cut in a character") << QByteArray("a\xd0") << u"a"_s;
    QTest::newRow("Latin-1") << QByteArray("gr\xfc\xdf"
                                           "e")
                             << u"grüße"_s;
}

void FileTextTest::textIsRecognised() {
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, text);
    const std::optional<QString> found = textIn(bytes);
    QVERIFY(found);
    QCOMPARE(*found, text);
}

void FileTextTest::otherBytesAreNoText_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("null byte in a text") << QByteArray("text\0text", 9);
    QTest::newRow("UTF-16") << QByteArray("\xff\xfe"
                                          "a\0b\0",
                                          6);
    QTest::newRow("program") << QByteArray("\x7f"
                                           "ELF\2\1\1");
    QTest::newRow("control characters") << QByteArray("\1\2\3");
}

void FileTextTest::otherBytesAreNoText() {
    QFETCH(const QByteArray, bytes);
    QVERIFY(!textIn(bytes));
}

void FileTextTest::dumpShowsOffsetBytesAndCharacters() {
    const QStringList lines = hexDump(QByteArray("0123456789abcdef\0\xff", 18)).split(u'\n');
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], u"00000000  30 31 32 33 34 35 36 37 38 39 61 62 63 64 65 66  0123456789abcdef"_s);
    QCOMPARE(lines[1], u"00000010  00 ff                                            .."_s);
}

void FileTextTest::longLinesAreBroken_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("broken");
    QTest::newRow("short lines stay") << u"abc\nabcd\n"_s << u"abc\nabcd\n"_s;
    QTest::newRow("long line") << u"abcdefghij"_s << u"abcd\nefgh\nij"_s;
    QTest::newRow("own line ends count") << u"ab\ncdefg"_s << u"ab\ncdef\ng"_s;
    QTest::newRow("pair of code units stays together") << u"abc😀d"_s << u"abc😀\nd"_s;
}

void FileTextTest::longLinesAreBroken() {
    QFETCH(const QString, text);
    QTEST(withShortLines(text, 4), "broken");
}

QTEST_GUILESS_MAIN(FileTextTest)
#include "tst_filetext.moc"
