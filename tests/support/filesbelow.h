// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>

/// Files for a test, by path below a directory.
using FilesBelow = QMap<QByteArray, QByteArray>;

void writeFiles(const QString &directory, const FilesBelow &files);
/// All regular files below, hidden ones as well.
FilesBelow readFiles(const QString &directory);
/// Names as they come up in the field, and worse: blanks, line feeds, per cent signs, Cyrillic, 255 bytes.
FilesBelow oddlyNamedFiles();
