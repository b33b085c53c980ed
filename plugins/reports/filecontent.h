// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QImage>
#include <QString>

class QFile;

/// What a saved file holds, ready to be shown.
class FileContent {
    Q_DECLARE_TR_FUNCTIONS(FileContent)

public:
    /// Reads a file of the directory: text up to the first mebibyte, a PNG or JPEG picture that memory can hold,
    /// otherwise the first bytes in hexadecimal.
    static FileContent read(const QString &directory, const QByteArray &name);

    bool isPicture() const { return !filePicture.isNull(); }
    QImage picture() const { return filePicture; }
    /// Empty for a picture, and when there is nothing to be shown.
    QString text() const { return fileText; }
    /// What the user has to know about what is shown, or why nothing is; usually empty.
    QString note() const { return fileNote; }

private:
    void readPicture(QFile &file, const QByteArray &format);
    void readText(QFile &file);

    QImage filePicture;
    QString fileText;
    QString fileNote;
};
