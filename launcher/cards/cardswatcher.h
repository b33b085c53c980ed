// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QMap>

struct CardInfo;

/// Turns what happens in the info directory of the card service into insertions and removals of cards. GUI thread only.
///
/// The launcher itself follows the service's bus signals; this is for programs on an instrument without a bus. Files that are
/// there already when the watcher is made are told at the first change of the directory.
class CardsWatcher : public QFileSystemWatcher {
    Q_OBJECT

public:
    /// `path` is the info directory.
    CardsWatcher(QObject *parent, const QString &path);

signals:
    void cardInserted(QString name, int sn, QString cardiface, QString poller);
    void cardRemoved(QString name, int sn);

public slots:
    /// Says that the card of the info file `_path` is known already: type, blank, serial number in `_matchData`. That file
    /// is never told of.
    void addMatch(const QString &_path, const QString &_matchData);

private slots:
    void dirChanged(const QString &path);
    // Named as the signal of the base class that it is connected to.
    void fileChanged(const QString &path);

private:
    void announce(const QString &path, const QList<QByteArray> &pieces, const CardInfo &card);
    void retract(const QString &path);

    /// By path of the info file: type and serial number of the card that was announced for it, with a blank between.
    QMap<QString, QString> matches;
};
