// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// Stores one value in the user's file of a store, all or nothing: after this the file is either as it was or
/// holds the value and all it held before, on the disk, whenever the power fails. `key` is "GROUP/KEY".
///
/// QSettings alone puts a file that was cut short by a full disk in place of the good one, and does not wait
/// for the disk. Here it writes a file beside, which is read back before it takes the store's place.
bool storeValue(const QString &file, const QString &key, const QVariant &value);
