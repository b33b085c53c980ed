// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// What the card service says of an inserted card: its type and serial number, and the addresses of its two lines.
struct CardInfo {
    QString name;
    int sn;
    QString cardiface;
    QString poller;

    bool operator==(const CardInfo &) const = default;
};

/// A whole number in base 10, with or without a sign; 0 for everything else, a blank before or after it included. As
/// every text of an info file it ends at a NUL.
int serialNumber(QByteArrayView text);

/// The card of an info file whose contents were cut at line feeds; nothing when there are fewer than four pieces. Texts
/// are Latin-1 and end at a NUL.
std::optional<CardInfo> cardInfo(const QList<QByteArray> &pieces);

/// The directory in which the card service keeps its info files: below /var/run, or else below /tmp, what is named
/// after the user; the current directory when the environment does not name a user.
QString cardInfoDirectory();

/// Full paths of the info files in `directory`, in order of name. Nothing when there is no such directory.
std::optional<QStringList> cardInfoFiles(const QString &directory);

/// The contents of an info file, cut at line feeds; nothing when it cannot be read. A card is described in the first four
/// lines: of a file over 64 KiB only the first 64 KiB are read, and it is no card when they hold fewer lines.
std::optional<QList<QByteArray>> readCardInfoFile(const QString &path);
