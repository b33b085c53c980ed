// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

/// Cuts what a program prints into lines, at line feeds and at carriage returns. A line that is longer than any that
/// rsync prints of itself is dropped, so that a babbling program cannot fill the memory.
class LineSplitter {
public:
    static constexpr qsizetype longestLine = 16384;

    /// The lines that `bytes` completes, without their ends; empty ones are left out.
    QList<QByteArray> add(const QByteArray &bytes);
    /// What has come of a line whose end has not.
    const QByteArray &unfinished() const { return begun; }

private:
    void append(const QByteArray &part);

    QByteArray begun;
    bool isTooLong = false;
};
