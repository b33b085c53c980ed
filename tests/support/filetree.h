// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>

/// Files for a test, by path below a directory.
using FileTree = QMap<QByteArray, QByteArray>;

void writeTree(const QString &directory, const FileTree &files);
/// All regular files below, hidden ones as well.
FileTree readTree(const QString &directory);
/// Names as they come up in the field, and worse: blanks, line feeds, per cent signs, Cyrillic, 255 bytes.
FileTree oddlyNamedFiles();
