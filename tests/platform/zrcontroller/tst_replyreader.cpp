// SPDX-License-Identifier: GPL-3.0-or-later
#include "replyreader.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class ReplyReaderTest : public QObject {
    Q_OBJECT

private slots:
    void replyEndsAtASingleDot_data();
    void replyEndsAtASingleDot();
    void bytesBehindTheReplyAreLeft();
    void singleBytesMakeTheSameReply();
    void replyWithoutEndIsGivenUp();
};

void ReplyReaderTest::replyEndsAtASingleDot_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("isComplete");
    QTest::addColumn<QString>("reply");
    QTest::newRow("no lines") << QByteArray(".\n") << true << QString();
    QTest::newRow("one line") << QByteArray("pcm\n.\n") << true << u"pcm"_s;
    QTest::newRow("two lines") << QByteArray("a\nb\n.\n") << true << u"a\nb"_s;
    QTest::newRow("empty line counts") << QByteArray("a\n\nb\n.\n") << true << u"a\n\nb"_s;
    QTest::newRow("empty line first") << QByteArray("\na\n.\n") << true << u"\na"_s;
    QTest::newRow("doubled dot") << QByteArray("..\n.\n") << true << u"."_s;
    QTest::newRow("doubled dot before text") << QByteArray("..x\n.\n") << true << u".x"_s;
    QTest::newRow("single dot before text is taken off") << QByteArray(".x\n.\n") << true << u"x"_s;
    QTest::newRow("carriage returns") << QByteArray("a\r\nb\r\n.\r\n") << true << u"a\nb"_s;
    QTest::newRow("carriage return inside") << QByteArray("a\rb\n.\n") << true << u"a\rb"_s;
    QTest::newRow("UTF-8") << u"Ω\n.\n"_s.toUtf8() << true << u"Ω"_s;
    QTest::newRow("NUL stays") << QByteArray("a\0b\n.\n", 6) << true << QString::fromLatin1("a\0b", 3);
    QTest::newRow("dot without line end") << QByteArray("a\n.") << false << u"a"_s;
    QTest::newRow("nothing") << QByteArray() << false << QString();
}

void ReplyReaderTest::replyEndsAtASingleDot() {
    QFETCH(QByteArray, bytes);
    QFETCH(bool, isComplete);
    ReplyReader reader;
    QCOMPARE(reader.feed(bytes), bytes.size());
    QCOMPARE(reader.state() == ReplyReader::Complete, isComplete);
    QTEST(reader.reply(), "reply");
}

void ReplyReaderTest::bytesBehindTheReplyAreLeft() {
    ReplyReader reader;
    QCOMPARE(reader.feed("a\n.\nb\n.\n"), 4);
    QCOMPARE(reader.reply(), u"a"_s);
    QCOMPARE(reader.feed("b\n.\n"), 0);
    QCOMPARE(reader.reply(), u"a"_s);
}

void ReplyReaderTest::singleBytesMakeTheSameReply() {
    ReplyReader reader;
    for (const char byte : QByteArray("one\n..two\n.\n"))
        QCOMPARE(reader.feed(QByteArrayView(&byte, 1)), 1);
    QCOMPARE(reader.state(), ReplyReader::Complete);
    QCOMPARE(reader.reply(), u"one\n.two"_s);
}

void ReplyReaderTest::replyWithoutEndIsGivenUp() {
    ReplyReader reader;
    const QByteArray part(64 * 1024, 'x');
    qsizetype taken = 0;
    for (int i = 0; i < 32; ++i)
        taken += reader.feed(part);
    QCOMPARE(reader.state(), ReplyReader::TooLong);
    QCOMPARE(taken, 1024 * 1024);
    QCOMPARE(reader.feed(".\n"), 0);
}

QTEST_GUILESS_MAIN(ReplyReaderTest)
#include "tst_replyreader.moc"
