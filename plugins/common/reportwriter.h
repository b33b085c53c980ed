// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// How saving a report ended.
struct SavedReport {
    /// Name of the new file in its directory; empty when nothing was saved.
    QString name;
    /// Why nothing was saved, in the words of the system.
    QString error;
};

/// Saves `text` as a new file "STEM.txt" in `directory`, which is made when it is missing. Where that name is
/// taken, "-2", "-3" and so on goes behind the stem: no report ever replaces another. The file appears under its
/// name only once all of it is on the disk.
SavedReport writeReport(const QString &directory, const QString &stem, const QString &text);
