// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <hostpath.h>

#include <QFileInfo>

/// Where to read about the machine: below the system root that a desk puts in the instrument's place when it has
/// `file` in that directory, otherwise the machine's own. Only for what runs inside the launcher, which has `hostPath()`.
inline QString hostSource(const QString &directory, const QString &file = QStringLiteral(".")) {
    const QString placed = hostPath(directory);
    return QFileInfo::exists(placed + u'/' + file) ? placed : directory;
}
