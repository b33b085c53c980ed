// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

/// A file system of a limited size, kept in memory. Only where this user may mount one.
class SmallDrive {
public:
    /// At `place`, or at a temporary directory.
    explicit SmallDrive(int kilobytes, const QString &place = QString(), bool isReadOnly = false);
    ~SmallDrive();
    SmallDrive(const SmallDrive &) = delete;
    SmallDrive &operator=(const SmallDrive &) = delete;

    bool isMounted() const { return mounted; }
    QString path() const { return mountPoint; }

private:
    QTemporaryDir directory;
    QString mountPoint;
    bool mounted;
};
