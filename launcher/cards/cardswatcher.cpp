// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardswatcher.h"

#include "cards/cardinfo.h"

#include <QDebug>
#include <QFile>

CardsWatcher::CardsWatcher(QObject *parent, const QString &path) : QFileSystemWatcher(parent) {
    connect(this, SIGNAL(directoryChanged(QString)), this, SLOT(dirChanged(QString)));
    // By its signature: the slot has the signal's name.
    connect(this, SIGNAL(fileChanged(QString)), this, SLOT(fileChanged(QString)));
    if (path.isEmpty())
        qDebug() << "Can't process empty path.";
    else
        addPath(path);
}

void CardsWatcher::addMatch(const QString &_path, const QString &_matchData) {
    if (!_path.isEmpty() && !_matchData.isEmpty())
        matches.insert(_path, _matchData);
}

void CardsWatcher::dirChanged(const QString &path) {
    qDebug() << "Directory is " << path;
    const std::optional<QStringList> files = cardInfoFiles(path);
    if (!files) {
        qDebug() << "Info dir tmp/user doesn't exist";
        return;
    }
    for (const QString &file : *files) {
        if (matches.contains(file))
            continue;
        const std::optional<QList<QByteArray>> pieces = readCardInfoFile(file);
        if (!pieces) {
            qDebug() << "Can't open file " << file;
            continue;
        }
        qDebug() << "\t  File is " << file;
        if (const std::optional<CardInfo> card = cardInfo(*pieces)) {
            addPath(file);
            announce(file, *pieces, *card);
        } else {
            qDebug() << *pieces << " is not enough";
        }
    }
}

void CardsWatcher::fileChanged(const QString &path) {
    if (!QFile::exists(path)) {
        retract(path);
        return;
    }
    const std::optional<QList<QByteArray>> pieces = readCardInfoFile(path);
    const std::optional<CardInfo> card = pieces ? cardInfo(*pieces) : std::nullopt;
    if (!card)
        return;
    retract(path);
    announce(path, *pieces, *card);
}

void CardsWatcher::announce(const QString &path, const QList<QByteArray> &pieces, const CardInfo &card) {
    matches.insert(path, card.name + u' ' + QString::fromLatin1(pieces[1].constData()));
    emit cardInserted(card.name, card.sn, card.cardiface, card.poller);
}

void CardsWatcher::retract(const QString &path) {
    const QStringList words = matches.take(path).split(u' ');
    emit cardRemoved(words.value(0), serialNumber(words.value(1).toLatin1()));
}
