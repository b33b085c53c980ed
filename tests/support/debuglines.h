// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Catches the debug lines of the program while it lives; other messages go where they always go.
class DebugLines {
public:
    DebugLines();
    ~DebugLines();
    DebugLines(const DebugLines &) = delete;
    DebugLines &operator=(const DebugLines &) = delete;

    QStringList lines() const;
};
