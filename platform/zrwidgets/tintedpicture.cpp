// SPDX-License-Identifier: GPL-3.0-or-later
#include "tintedpicture.h"

#include <QPainter>

QPixmap tintedPicture(const QPixmap &picture, const QColor &color) {
    if (picture.isNull())
        return picture;
    QPixmap tinted = picture;
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(), picture.deviceIndependentSize()), color);
    return tinted;
}
