// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

/// What is wrong with the text of a store, as the end of a sentence, or nothing when it can be read.
///
/// The text is QSettings' "INI" form: sections, "key=value" lines, values in quotes, backslash escapes, and
/// comment lines. A value whose quote never ends was cut short, so it counts as damage too.
QString damageIn(QByteArrayView text);

/// The file in which the user's values of an application's store are kept.
QString userStoreFile(const QString &application);

/// The system-wide file that stands in front of the others.
QString systemStoreFile(const QString &application);

/// Says on standard error, once, that the system-wide file cannot be read as a store. It is not ours to move.
void tellDamagedSystemStore(const QString &file);

/// Keeps the user's file aside as "FILE.damaged" when it cannot be read as a store, and says so in one line on
/// standard error. A file that may not be read stays where it is and is told too. A file that has not changed since it was looked at last is not read again.
void setDamagedStoreAside(const QString &file);

/// Waits until the file, and its name in its directory, are on the disk. False when the system refuses.
bool flushToDisk(const QString &file);
