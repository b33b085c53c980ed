// SPDX-License-Identifier: GPL-3.0-or-later
#include "picturedifference.h"

using namespace Qt::Literals::StringLiterals;

qint64 differenceBetween(const QImage &one, const QImage &other) {
    qint64 difference = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb is = one.pixel(x, y);
            const QRgb was = other.pixel(x, y);
            difference +=
                qAbs(qRed(is) - qRed(was)) + qAbs(qGreen(is) - qGreen(was)) + qAbs(qBlue(is) - qBlue(was));
        }
    }
    return difference;
}

qint64 toleratedDifference(const QSize &size) {
    // On average, of a pixel's three colours together: another version of Qt may smooth an edge differently.
    constexpr qint64 tolerance = 1;
    return tolerance * size.width() * size.height();
}

QString differenceFromReference(const QImage &picture, const QString &file) {
    if (qEnvironmentVariableIsSet("ZR_MAKE_REFERENCES") && !picture.save(file))
        return u"%1 cannot be written"_s.arg(file);
    const QImage reference = QImage(file).convertToFormat(QImage::Format_RGB32);
    if (picture.isNull() || picture.size() != reference.size())
        return u"%1 x %2 pixels, not %3 x %4"_s.arg(picture.width())
            .arg(picture.height())
            .arg(reference.width())
            .arg(reference.height());
    const qint64 difference = differenceBetween(picture, reference);
    const qint64 tolerated = toleratedDifference(picture.size());
    return difference < tolerated ? QString() : u"%1, tolerated is %2"_s.arg(difference).arg(tolerated);
}
