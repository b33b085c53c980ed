// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QString>

/// The picture in a PNG file; null when there is none. QPixmap and QIcon load every image format plug-in and ask each of
/// them before they look at the file, which costs the start a millisecond and half a megabyte. GUI thread only.
QPixmap pngPicture(const QString &file);
