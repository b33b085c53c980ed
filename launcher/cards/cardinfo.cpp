// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardinfo.h"

#include "hostpath.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <charconv>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype fewestPieces = 4;
constexpr qint64 mostBytes = 64 * 1024;

QString latin1(const QByteArray &piece) {
    return QString::fromLatin1(piece.constData());
}

} // namespace

int serialNumber(QByteArrayView text) {
    text = text.first(qstrnlen(text.data(), static_cast<size_t>(text.size())));
    if (text.startsWith('+') && !text.startsWith("+-"))
        text = text.sliced(1);
    int number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number);
    return error == std::errc() && end == text.end() ? number : 0;
}

std::optional<CardInfo> cardInfo(const QList<QByteArray> &pieces) {
    if (pieces.size() < fewestPieces)
        return std::nullopt;
    return CardInfo{latin1(pieces[0]), serialNumber(pieces[1]), latin1(pieces[2]), latin1(pieces[3])};
}

QString cardInfoDirectory() {
    const QString user = qEnvironmentVariable("USER");
    if (user.isEmpty())
        return QDir::currentPath();
    const QString directory = hostPath("/var/run/"_L1 + user);
    return QFileInfo(directory).isDir() ? directory : hostPath("/tmp/"_L1 + user);
}

std::optional<QStringList> cardInfoFiles(const QString &directory) {
    const QDir dir(directory);
    if (!dir.exists())
        return std::nullopt;
    QStringList paths;
    for (const QString &name :
         dir.entryList({u"*.info"_s}, QDir::AllEntries | QDir::System, QDir::Name | QDir::IgnoreCase))
        paths.append(dir.filePath(name));
    return paths;
}

std::optional<QList<QByteArray>> readCardInfoFile(const QString &path) {
    // Not a directory, and nothing that would make us wait for a writer.
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.read(mostBytes);
    QList<QByteArray> pieces = bytes.split('\n');
    if (bytes.size() < mostBytes || file.atEnd())
        return pieces;
    // The last piece may go on.
    pieces.removeLast();
    if (pieces.size() < fewestPieces) {
        std::cerr << qPrintable(path) << " is too long for a card's info file" << std::endl;
        return QList<QByteArray>();
    }
    return pieces;
}
