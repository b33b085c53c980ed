// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryDir>

/// Shell scripts that are found before the machine's own programs, as long as this lives.
class StandInPrograms {
public:
    StandInPrograms();
    ~StandInPrograms();
    StandInPrograms(const StandInPrograms &) = delete;
    StandInPrograms &operator=(const StandInPrograms &) = delete;

    /// `script` is what stands behind the first line. "$0.log" is read by log().
    void put(const QString &program, const QByteArray &script);
    QByteArray log(const QString &program) const;
    /// Of a file beside the programs.
    QString path(const QString &name) const { return directory.filePath(name); }
    /// No program is found any more.
    void hideAll();

private:
    QTemporaryDir directory;
    QByteArray originalPath;
};
