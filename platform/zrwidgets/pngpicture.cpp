// SPDX-License-Identifier: GPL-3.0-or-later
#include "pngpicture.h"

#include <QImageReader>

QPixmap pngPicture(const QString &file) {
    QImageReader reader(file, "png");
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}
