// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemstate.h"

#include <QCoreApplication>
#include <QDateTime>

/// The report that is saved: the machine's state and its storage as text lines.
class SystemReport {
    Q_DECLARE_TR_FUNCTIONS(SystemReport)

public:
    SystemReport() = delete;

    static QString text(const QDateTime &moment, const SystemState &state,
                        const QList<MountedVolume> &storage);

private:
    static QString storageLine(const MountedVolume &mounted);
};
