// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// How far a copy is, read from the lines that rsync prints with `--info=progress1,flist2` (rsync manual).
///
/// Counted in hundredths of an entry, an entry being a file or a directory: within a long file rsync only tells that
/// file's percentage.
class RsyncProgress {
public:
    static constexpr int countsPerEntry = 100;

    /// Takes one line; false when it tells nothing of the progress.
    bool read(const QByteArray &line);

    /// What is still to do, from `total()` down to 0.
    int left() const { return leftCount; }
    /// 0 until rsync has told.
    int total() const { return totalCount; }

private:
    bool setEntries(int left, int total);
    bool setPercentOfFile(int percent);

    int leftCount = 0;
    int totalCount = 0;
    /// What was left when the current file began.
    int leftBeforeFile = 0;
};
