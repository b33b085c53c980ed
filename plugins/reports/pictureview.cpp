// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictureview.h"

#include <QPainter>

void PictureView::setPicture(const QImage &picture) {
    wholePicture = picture;
    fit();
    update();
}

void PictureView::resizeEvent(QResizeEvent *) {
    fit();
}

void PictureView::fit() {
    const QSize room = size() * devicePixelRatioF();
    const QSize whole = wholePicture.size();
    const bool isLarger = whole.width() > room.width() || whole.height() > room.height();
    fittedPicture = QPixmap::fromImage(
        isLarger ? wholePicture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation) : wholePicture);
    fittedPicture.setDevicePixelRatio(devicePixelRatioF());
}

void PictureView::paintEvent(QPaintEvent *) {
    const QSize shown = fittedPicture.deviceIndependentSize().toSize();
    QPainter(this).drawPixmap((width() - shown.width()) / 2, (height() - shown.height()) / 2, fittedPicture);
}
