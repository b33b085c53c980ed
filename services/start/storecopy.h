// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

class QFileSystemWatcher;

/// What differs in a copy of the configuration from the user's own.
struct StoreDifference {
    /// Values of the copy, by "GROUP/KEY".
    QMap<QString, QVariant> values;
    /// The plug-in groups that are replaced by their notices in all lists.
    QStringList leftOut;
};

/// The changes of the copy that are the user's: what `now` has and `before` had not. Notices are taken out of the
/// lists again, and their groups are not the user's. An invalid value stands for a key that is gone.
QMap<QString, QVariant> usersChanges(const QMap<QString, QVariant> &before,
                                     const QMap<QString, QVariant> &now, const QStringList &leftOut);

/// A directory that stands in for the user's own configuration directory while plug-ins are left out. It holds a
/// copy of the launcher's store, and links to everything else.
///
/// What the launcher stores in the copy is stored in the user's own file too, as soon as it is there.
class StoreCopy : public QObject {
    Q_OBJECT

public:
    /// `ownHome` is the user's configuration directory, `copyHome` the one that stands in for it; what was there
    /// is taken away.
    StoreCopy(const QString &ownHome, const QString &copyHome, const StoreDifference &difference);
    /// Carries back what is new, then takes the copy away.
    ~StoreCopy() override;

    /// Whether the copy could be made; otherwise the launcher has to take the user's own.
    bool isMade() const { return made; }
    QString directory() const { return copyHome; }

private:
    void linkTheRest() const;
    void carryBack();
    void carryOtherFilesBack() const;

    QString ownHome;
    QString copyHome;
    QStringList leftOut;
    QMap<QString, QVariant> carried;
    bool made = false;
    QFileSystemWatcher *watcher;
};
