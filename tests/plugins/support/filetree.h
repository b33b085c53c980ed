// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QTemporaryDir>

/// A directory of the test's own, filled by hand.
class FileTree {
public:
    QString path() const { return directory.path(); }
    QString path(const QString &name) const { return directory.filePath(name); }

    /// Writes a file and makes the directories above it.
    void write(const QString &name, const QByteArray &bytes) const {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", qPrintable(path(name)));
    }

    QByteArray read(const QString &name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

private:
    QTemporaryDir directory;
};
