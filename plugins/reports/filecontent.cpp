// SPDX-License-Identifier: GPL-3.0-or-later
#include "filecontent.h"

#include "filetext.h"
#include "reportfiles.h"

#include <QImageReader>

namespace {

constexpr qint64 mostTextBytes = 1 << 20;
constexpr qint64 mostHexBytes = 4096;
constexpr qsizetype longestLine = 1000;
// 64 MB at four bytes a pixel.
constexpr qint64 mostPixels = 16'000'000;
constexpr QSize largestShown(1600, 1200);

/// The format that the first bytes stand for; empty when it is none that is shown as a picture.
QByteArray pictureFormat(const QByteArray &start) {
    if (start.startsWith("\x89PNG\r\n\x1a\n"))
        return "png";
    return start.startsWith("\xff\xd8\xff") ? "jpeg" : "";
}

} // namespace

FileContent FileContent::read(const QString &directory, const QByteArray &name) {
    constexpr qint64 longestMark = 8;
    FileContent content;
    QFile file;
    if (!openReport(file, directory, name)) {
        content.fileNote = tr("This file cannot be read.");
        return content;
    }
    const QByteArray format = pictureFormat(file.peek(longestMark));
    if (format.isEmpty())
        content.readText(file);
    else
        content.readPicture(file, format);
    return content;
}

void FileContent::readPicture(QFile &file, const QByteArray &format) {
    QImageReader reader(&file, format);
    const QSize size = reader.size();
    if (!size.isValid()) {
        fileNote = tr("This picture is damaged.");
    } else if (qint64(size.width()) * size.height() > mostPixels) {
        fileNote =
            tr("This picture is too large to be shown: %1 x %2 points.").arg(size.width()).arg(size.height());
    } else {
        if (size.width() > largestShown.width() || size.height() > largestShown.height())
            reader.setScaledSize(size.scaled(largestShown, Qt::KeepAspectRatio).expandedTo({1, 1}));
        reader.setAutoTransform(true);
        if (!reader.read(&filePicture))
            fileNote = tr("This picture is damaged.");
    }
}

void FileContent::readText(QFile &file) {
    const QByteArray bytes = file.read(mostTextBytes);
    if (const std::optional<QString> text = textIn(bytes)) {
        fileText = withShortLines(*text, longestLine);
        if (file.size() > mostTextBytes)
            fileNote = tr("The file is long; its beginning is shown.");
        else if (bytes.isEmpty())
            fileNote = tr("The file is empty.");
        return;
    }
    fileText = hexDump(bytes.first(qMin(bytes.size(), mostHexBytes)));
    fileNote = tr("This is not a text; its first bytes are shown.");
}
