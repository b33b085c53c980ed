// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureview.h"

#include <QTest>

class PictureViewTest : public QObject {
    Q_OBJECT

private slots:
    void largePictureIsShownWhole();
    void smallPictureIsNotEnlarged();
    void nullPictureEmptiesTheView();

private:
    static QRect blueArea(PictureView &view);
    static QImage bluePicture(const QSize &size);
};

QImage PictureViewTest::bluePicture(const QSize &size) {
    QImage picture(size, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    return picture;
}

QRect PictureViewTest::blueArea(PictureView &view) {
    const QImage shown = view.grab().toImage();
    QRegion blue;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            if (shown.pixelColor(x, y) == QColor(Qt::blue))
                blue += QRect(x, y, 1, 1);
        }
    }
    return blue.boundingRect();
}

void PictureViewTest::largePictureIsShownWhole() {
    PictureView view;
    view.resize(100, 80);
    view.setPicture(bluePicture({1000, 500}));
    QCOMPARE(blueArea(view), QRect(0, 15, 100, 50));
}

void PictureViewTest::smallPictureIsNotEnlarged() {
    PictureView view;
    view.resize(100, 80);
    view.setPicture(bluePicture({20, 10}));
    QCOMPARE(blueArea(view), QRect(40, 35, 20, 10));
}

void PictureViewTest::nullPictureEmptiesTheView() {
    PictureView view;
    view.resize(100, 80);
    view.setPicture(bluePicture({20, 10}));
    view.setPicture(QImage());
    QVERIFY(blueArea(view).isEmpty());
}

QTEST_MAIN(PictureViewTest)
#include "tst_pictureview.moc"
