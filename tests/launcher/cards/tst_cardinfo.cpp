// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardinfo.h"

#include "errorstream.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include <limits>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

class CardInfoTest : public QObject {
    Q_OBJECT

private slots:
    void fourPiecesMakeACard_data();
    void fourPiecesMakeACard();
    void fewerPiecesMakeNone_data();
    void fewerPiecesMakeNone();
    void serialNumberIsTheWholePiece_data();
    void serialNumberIsTheWholePiece();
    void directoryIsNamedAfterTheUser();
    void filesAreListedByNameWhateverTheirCase();
    void whatCannotBeReadIsNoFile_data();
    void whatCannotBeReadIsNoFile();
    void hugeFileIsReadNoFurtherThanNeeded();
    void hugeFileWithoutLinesIsTold();

private:
    QString write(const QString &name, const QByteArray &bytes) {
        QFile file(directory.filePath(name));
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir directory;
};

void CardInfoTest::fourPiecesMakeACard_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("sn");
    QTest::addColumn<QString>("cardiface");
    QTest::addColumn<QString>("poller");
    QTest::newRow("four lines") << QByteArray("e1\n1234\nx\ny\n") << u"e1"_s << 1234 << u"x"_s << u"y"_s;
    QTest::newRow("no line feed at the end")
        << QByteArray("e1\n1234\nx\ny") << u"e1"_s << 1234 << u"x"_s << u"y"_s;
    QTest::newRow("three lines and a line feed")
        << QByteArray("e1\n1234\nx\n") << u"e1"_s << 1234 << u"x"_s << u""_s;
    QTest::newRow("more lines") << QByteArray("e1\n1\nx\ny\nz\nz") << u"e1"_s << 1 << u"x"_s << u"y"_s;
    QTest::newRow("carriage returns stay")
        << QByteArray("e1\r\n1234\r\nx\r\ny\r\n") << u"e1\r"_s << 0 << u"x\r"_s << u"y\r"_s;
    QTest::newRow("blanks stay") << QByteArray(" e1 \n 7\n x\ny \n") << u" e1 "_s << 0 << u" x"_s << u"y "_s;
    QTest::newRow("only line feeds") << QByteArray("\n\n\n") << u""_s << 0 << u""_s << u""_s;
    QTest::newRow("Latin-1") << QByteArray("\xe9\n1\nx\ny") << u"é"_s << 1 << u"x"_s << u"y"_s;
    QTest::newRow("text ends at a NUL")
        << QByteArray("e1\0x\n1\nx\ny", 10) << u"e1"_s << 1 << u"x"_s << u"y"_s;
}

void CardInfoTest::fourPiecesMakeACard() {
    QFETCH(QByteArray, bytes);
    const std::optional<CardInfo> card = cardInfo(bytes.split('\n'));
    QVERIFY(card);
    QTEST(card->name, "name");
    QTEST(card->sn, "sn");
    QTEST(card->cardiface, "cardiface");
    QTEST(card->poller, "poller");
}

void CardInfoTest::fewerPiecesMakeNone_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("three lines without the last line feed") << QByteArray("e1\n1234\nx");
    QTest::newRow("two line feeds") << QByteArray("\n\n");
    QTest::newRow("binary") << QByteArray("\x7f\x45LF\0\1\2\3", 8);
}

void CardInfoTest::fewerPiecesMakeNone() {
    QFETCH(QByteArray, bytes);
    QVERIFY(!cardInfo(bytes.split('\n')));
}

void CardInfoTest::serialNumberIsTheWholePiece_data() {
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("number");
    QTest::newRow("number") << QByteArray("1234") << 1234;
    QTest::newRow("zeros in front") << QByteArray("007") << 7;
    QTest::newRow("minus") << QByteArray("-5") << -5;
    QTest::newRow("plus") << QByteArray("+5") << 5;
    QTest::newRow("plus and minus") << QByteArray("+-5") << 0;
    QTest::newRow("highest") << QByteArray("2147483647") << std::numeric_limits<int>::max();
    QTest::newRow("lowest") << QByteArray("-2147483648") << std::numeric_limits<int>::min();
    QTest::newRow("too high") << QByteArray("2147483648") << 0;
    QTest::newRow("far too high") << QByteArray("9").repeated(1000) << 0;
    QTest::newRow("carriage return behind") << QByteArray("1234\r") << 0;
    QTest::newRow("blank behind") << QByteArray("1234 ") << 0;
    QTest::newRow("blank in front") << QByteArray(" 1234") << 0;
    QTest::newRow("text ends at a NUL") << QByteArray("12\0x", 4) << 12;
    QTest::newRow("base 16") << QByteArray("0x10") << 0;
    QTest::newRow("fraction") << QByteArray("1.5") << 0;
    QTest::newRow("no text") << QByteArray() << 0;
}

void CardInfoTest::serialNumberIsTheWholePiece() {
    QFETCH(QByteArray, text);
    QTEST(serialNumber(text), "number");
}

void CardInfoTest::directoryIsNamedAfterTheUser() {
    const QString root = qEnvironmentVariable("ZR_SYSROOT");
    const QByteArray user = qgetenv("USER");
    QCOMPARE(cardInfoDirectory(), root + "/tmp/tester"_L1);
    QVERIFY(QDir().mkpath(root + "/var/run/tester"_L1));
    QCOMPARE(cardInfoDirectory(), root + "/var/run/tester"_L1);
    QVERIFY(QDir(root + "/var"_L1).removeRecursively());
    qputenv("USER", "");
    QCOMPARE(cardInfoDirectory(), QDir::currentPath());
    qunsetenv("USER");
    QCOMPARE(cardInfoDirectory(), QDir::currentPath());
    qputenv("USER", user);
}

void CardInfoTest::filesAreListedByNameWhateverTheirCase() {
    const QTemporaryDir place;
    for (const QString &name :
         {u"b.info"_s, u"A.INFO"_s, u"c.Info"_s, u".hidden.info"_s, u"d.inf"_s, u"e.info.x"_s})
        QVERIFY(QFile(place.filePath(name)).open(QIODevice::WriteOnly));
    QVERIFY(QDir(place.path()).mkdir(u"dir.info"_s));
    const QString path = place.path() + u'/';
    QCOMPARE(cardInfoFiles(place.path()).value_or(QStringList()),
             QStringList({path + "A.INFO"_L1, path + "b.info"_L1, path + "c.Info"_L1, path + "dir.info"_L1}));
    QVERIFY(!cardInfoFiles(path + "nowhere"_L1));
}

void CardInfoTest::whatCannotBeReadIsNoFile_data() {
    QTest::addColumn<QString>("path");
    QVERIFY(QDir(directory.path()).mkpath(u"directory.info"_s));
    QTest::newRow("directory") << directory.filePath(u"directory.info"_s);
    QFile::link(u"/nowhere/at/all"_s, directory.filePath(u"dangling.info"_s));
    QTest::newRow("dangling link") << directory.filePath(u"dangling.info"_s);
    const QByteArray pipe = directory.filePath(u"pipe.info"_s).toLocal8Bit();
    ::mkfifo(pipe.constData(), 0600);
    QTest::newRow("pipe that nobody writes to") << QString::fromLocal8Bit(pipe);
    QTest::newRow("missing") << directory.filePath(u"missing.info"_s);
    const QString secret = write(u"secret.info"_s, "e1\n1\nx\ny\n");
    QFile::setPermissions(secret, {});
    QFile::setPermissions(directory.path(), QFile::Permissions(0x7777));
    QTest::newRow("unreadable") << secret;
}

void CardInfoTest::whatCannotBeReadIsNoFile() {
    QFETCH(QString, path);
    // Root may read everything, so it is somebody else meanwhile.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot)
        QCOMPARE(::seteuid(65534), 0);
    const bool isRead = readCardInfoFile(path).has_value();
    if (isRoot)
        QCOMPARE(::seteuid(0), 0);
    QVERIFY(!isRead);
}

void CardInfoTest::hugeFileIsReadNoFurtherThanNeeded() {
    QFile file(write(u"huge.info"_s, "e1\n1\nx\ny\n"));
    QVERIFY(file.resize(100 * 1024 * 1024));
    const std::optional<QList<QByteArray>> pieces = readCardInfoFile(file.fileName());
    QVERIFY(pieces);
    QCOMPARE(cardInfo(*pieces), (CardInfo{u"e1"_s, 1, u"x"_s, u"y"_s}));
    qsizetype bytes = 0;
    for (const QByteArray &piece : *pieces)
        bytes += piece.size();
    QVERIFY(bytes <= 64 * 1024);
}

void CardInfoTest::hugeFileWithoutLinesIsTold() {
    QFile file(write(u"endless.info"_s, "e1\n1\nx"));
    QVERIFY(file.resize(100 * 1024 * 1024));
    ErrorStream errors;
    QVERIFY(!cardInfo(readCardInfoFile(file.fileName()).value()));
    QCOMPARE(errors.take(), file.fileName().toLocal8Bit() + " is too long for a card's info file\n");
}

QTEST_GUILESS_MAIN(CardInfoTest)
#include "tst_cardinfo.moc"
