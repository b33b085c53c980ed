// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QFile>
#include <QList>

#include <optional>

/// A saved file. The name is kept as the file system has it, whatever bytes that may be.
struct ReportFile {
    QByteArray name;
    quint64 size = 0;
    QDateTime modified;
};

/// The files of a directory, the newest first.
struct ReportListing {
    QList<ReportFile> files;
    /// There are more files than are listed.
    bool isCut = false;
    /// Why the directory could not be read, in the words of the system; empty also when it does not exist.
    QString error;
};

/// Lists the regular files in `directory`, and the links to such: the link's own date, the size of what it leads
/// to. At most `mostFiles`.
ReportListing reportsIn(const QString &directory, qsizetype mostFiles = 20'000);

/// The name as it can be shown in one line: control characters are replaced.
QString shownName(const QByteArray &name);

/// Opens a file of the directory for reading, without ever waiting for it. False when it is not a regular file,
/// or may not be read.
bool openReport(QFile &file, const QString &directory, const QByteArray &name);

/// Deletes one entry of the directory; of a link the link itself, never what it leads to. What went wrong, or
/// nothing.
std::optional<QString> deleteReport(const QString &directory, const QByteArray &name);
