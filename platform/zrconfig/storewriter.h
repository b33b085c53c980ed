// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>
#include <QVariant>

/// New values by "GROUP/KEY"; an invalid one takes the key out.
using StoreChanges = QMap<QString, QVariant>;

/// Stores changes in a user's file of a store, all or nothing: after this the file is either as it was or holds the new
/// values and all others it held before, on the disk, whenever the power fails.
///
/// QSettings alone puts a file that was cut short by a full disk in place of the good one, and does not wait
/// for the disk. Here it writes a file beside, which is read back before it takes the store's place.
bool storeChanges(const QString &file, const StoreChanges &changes);

/// The same for one value. `key` is "GROUP/KEY".
bool storeValue(const QString &file, const QString &key, const QVariant &value);

/// All values of one file, by "GROUP/KEY"; none when it cannot be read.
QMap<QString, QVariant> valuesIn(const QString &file);
