// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

/// A file system of a limited size, kept in memory. Only where this user may mount one.
class SmallDrive {
public:
    explicit SmallDrive(int kilobytes, bool isReadOnly = false);
    ~SmallDrive();
    SmallDrive(const SmallDrive &) = delete;
    SmallDrive &operator=(const SmallDrive &) = delete;

    bool isMounted() const { return mounted; }
    QString path() const { return directory.path(); }

private:
    QTemporaryDir directory;
    bool mounted;
};
