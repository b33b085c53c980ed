// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "standinprograms.h"

#include <QDir>

class LauncherProcess;

/// Reports in the home directory, and an rsync that is still at work on them when the test interferes.
class SlowExport {
public:
    static constexpr int longestCopyMs = 60'000;

    /// Of that launcher, which is not started yet.
    explicit SlowExport(LauncherProcess &launcher);

    /// Answers the question about a drive, and comes back in the middle of the copy: how many per cent are done, 0 when it does
    /// not come so far.
    int begin() const;
    /// Whether all reports are on the drive that is mounted there, byte for byte.
    bool isWholeAt(const QString &mountPoint) const;

private:
    LauncherProcess &exporter;
    QDir reports;
    StandInPrograms programs;
};
