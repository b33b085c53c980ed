// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>

class QColor;

/// `picture`, drawn in lines of one colour on nothing, in another colour.
QPixmap tintedPicture(const QPixmap &picture, const QColor &color);
