// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "mounthelper.h"
#include "udiskswatcher.h"

#include <QSet>
#include <QTimer>

/// Mounts one partition of each flash drive and announces it, until the drive goes.
class FlashService : public QObject {
    Q_OBJECT

public:
    FlashService(const QDBusConnection &systemBus, std::chrono::milliseconds mountLimit);

private:
    enum State { Mounting, Mounted, Failed };
    /// A partition that was begun with, until it goes.
    struct Attempt {
        QDBusObjectPath path;
        QDBusObjectPath drive;
        State state;
    };

    void dropGone();
    void mountNew();
    void tellRefusal(const QDBusObjectPath &path, const QString &refusal);
    bool isDriveInUse(const QDBusObjectPath &drive) const;
    void begin(const QString &name, const Attempt &attempt);
    void mountTimedOut(const QString &name);
    void mountEnded(const QString &name, int exitCode);

    UDisksWatcher udisks;
    MountHelper helper;
    /// By partition name.
    QMap<QString, Attempt> attempts;
    QSet<QDBusObjectPath> refused;
    /// Runs out when all that has arrived is taken in, so that thousands of objects are looked through once.
    QTimer search;
};
