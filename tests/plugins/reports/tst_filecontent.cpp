// SPDX-License-Identifier: GPL-3.0-or-later
#include "filecontent.h"
#include "filetree.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

class FileContentTest : public QObject {
    Q_OBJECT

private slots:
    void textIsShownWhole();
    void longTextIsShownInPart();
    void emptyFileIsSaidToBeEmpty();
    void binaryFileIsShownInHexadecimal();
    void pictureIsRecognisedByItsBytes_data();
    void pictureIsRecognisedByItsBytes();
    void largePictureIsScaledDown();
    void hugePictureIsRefused();
    void damagedPictureIsTold_data();
    void damagedPictureIsTold();
    void unreadableFileIsTold();

private:
    FileTree tree;
};

void FileContentTest::textIsShownWhole() {
    tree.write(u"report"_s, "one\ntwo\n");
    const FileContent content = FileContent::read(tree.path(), "report");
    QCOMPARE(content.text(), u"one\ntwo\n"_s);
    QVERIFY(content.note().isEmpty());
    QVERIFY(!content.isPicture());
}

void FileContentTest::longTextIsShownInPart() {
    tree.write(u"long"_s, QByteArray("0123456\n").repeated(400'000));
    const FileContent content = FileContent::read(tree.path(), "long");
    QCOMPARE(content.text().size(), 1 << 20);
    QVERIFY(!content.note().isEmpty());
}

void FileContentTest::emptyFileIsSaidToBeEmpty() {
    tree.write(u"empty"_s, "");
    const FileContent content = FileContent::read(tree.path(), "empty");
    QVERIFY(content.text().isEmpty());
    QVERIFY(!content.note().isEmpty());
}

void FileContentTest::binaryFileIsShownInHexadecimal() {
    tree.write(u"binary"_s, QByteArray(100'000, '\1'));
    const FileContent content = FileContent::read(tree.path(), "binary");
    QVERIFY(content.text().startsWith("00000000  01 01"_L1));
    QCOMPARE(content.text().count(u'\n'), 4096 / 16 - 1);
    QVERIFY(!content.note().isEmpty());
}

void FileContentTest::pictureIsRecognisedByItsBytes_data() {
    QTest::addColumn<QByteArray>("format");
    QTest::newRow("PNG") << QByteArray("png");
    QTest::newRow("JPEG") << QByteArray("jpeg");
}

void FileContentTest::pictureIsRecognisedByItsBytes() {
    QFETCH(const QByteArray, format);
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QVERIFY(picture.save(tree.path(u"picture.txt"_s), format.constData()));
    const FileContent content = FileContent::read(tree.path(), "picture.txt");
    QVERIFY(content.isPicture());
    QCOMPARE(content.picture().size(), QSize(40, 30));
    QVERIFY(content.text().isEmpty());
}

void FileContentTest::largePictureIsScaledDown() {
    QImage picture(4000, 1000, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    QVERIFY(picture.save(tree.path(u"large"_s), "png"));
    QCOMPARE(FileContent::read(tree.path(), "large").picture().size(), QSize(1600, 400));
}

void FileContentTest::hugePictureIsRefused() {
    QImage picture(5000, 5000, QImage::Format_Mono);
    picture.fill(0);
    QVERIFY(picture.save(tree.path(u"huge"_s), "png"));
    const FileContent content = FileContent::read(tree.path(), "huge");
    QVERIFY(!content.isPicture());
    QVERIFY(content.note().contains("5000"_L1));
}

void FileContentTest::damagedPictureIsTold_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("PNG cut after its mark") << QByteArray("\x89PNG\r\n\x1a\n");
    QTest::newRow("JPEG cut after its mark") << QByteArray("\xff\xd8\xff\xe0");
    QTest::newRow("PNG with rubbish behind its mark")
        << QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(500, 'x');
}

void FileContentTest::damagedPictureIsTold() {
    QFETCH(const QByteArray, bytes);
    tree.write(u"damaged"_s, bytes);
    const FileContent content = FileContent::read(tree.path(), "damaged");
    QVERIFY(!content.isPicture());
    QVERIFY(!content.note().isEmpty());
}

void FileContentTest::unreadableFileIsTold() {
    QVERIFY(!FileContent::read(tree.path(), "missing").note().isEmpty());
    QVERIFY(!FileContent::read(u"/"_s, "proc").note().isEmpty());
}

QTEST_MAIN(FileContentTest)
#include "tst_filecontent.moc"
