// SPDX-License-Identifier: GPL-3.0-or-later
#include "pngpicture.h"

#include <QFile>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class PngPictureTest : public QObject {
    Q_OBJECT

private slots:
    void readsThePictureWithoutImageFormatPlugins();
    void isNullWithoutAFile();
};

void PngPictureTest::readsThePictureWithoutImageFormatPlugins() {
    const QPixmap picture = pngPicture(QStringLiteral(PICTURE));
    QFile maps(u"/proc/self/maps"_s);
    QVERIFY(maps.open(QIODevice::ReadOnly));
    QVERIFY(!maps.readAll().contains("/imageformats/"));
    QCOMPARE(picture.toImage(), QPixmap(QStringLiteral(PICTURE)).toImage());
    QVERIFY(!picture.isNull());
}

void PngPictureTest::isNullWithoutAFile() {
    QVERIFY(pngPicture(u"/nonexistent.png"_s).isNull());
}

QTEST_MAIN(PngPictureTest)
#include "tst_pngpicture.moc"
