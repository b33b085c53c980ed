// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

/// The sum over all pixels and their three colours. Both pictures have the same size.
qint64 differenceBetween(const QImage &one, const QImage &other);

/// How much difference is still put down to the smoothing of edges in a picture of that size.
qint64 toleratedDifference(const QSize &size);

/// What differs from the picture in `file`; empty when nothing does that is not tolerated. With
/// ZR_MAKE_REFERENCES set, `picture` is written to the file first.
QString differenceFromReference(const QImage &picture, const QString &file);
