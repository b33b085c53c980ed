// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

/// Where two pictures differ, in words; empty where they do not. They are compared in squares of 16 x 16 pixels, so that
/// a letter or a pointer counts however large the rest is; an edge that another library smooths in another way does not.
QString blockDifference(const QImage &one, const QImage &other);
