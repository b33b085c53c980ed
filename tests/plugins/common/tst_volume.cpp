// SPDX-License-Identifier: GPL-3.0-or-later
#include "volume.h"

#include <QDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class VolumeTest : public QObject {
    Q_OBJECT

private slots:
    void rootFileSystemIsMeasured();
    void pathsOfOneFileSystemAreRecognised();
    void missingPathHasNone();
};

void VolumeTest::rootFileSystemIsMeasured() {
    const std::optional<Volume> volume = volumeOf(u"/"_s);
    QVERIFY(volume);
    QVERIFY(volume->total > 0);
    QVERIFY(volume->used <= volume->total);
    QVERIFY(volume->available <= volume->total - volume->used);
}

void VolumeTest::pathsOfOneFileSystemAreRecognised() {
    QCOMPARE(volumeOf(QDir::homePath())->device, volumeOf(QDir::homePath() + u"/."_s)->device);
    QVERIFY(volumeOf(u"/"_s)->device != volumeOf(u"/proc"_s)->device);
}

void VolumeTest::missingPathHasNone() {
    QVERIFY(!volumeOf(u"/nowhere/at/all"_s));
}

QTEST_GUILESS_MAIN(VolumeTest)
#include "tst_volume.moc"
