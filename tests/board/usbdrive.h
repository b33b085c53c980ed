// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

/// A flash drive outside of any machine: a file with one FAT partition.
class UsbDrive {
public:
    /// Makes it anew, empty. Throws std::runtime_error where a program that is needed for it fails.
    UsbDrive(const QString &file, int megabytes);

    const QString &file() const { return name; }

    /// What lies on it, by path below its root directory.
    QMap<QString, QByteArray> contents() const;
    /// What is wrong with the file system; empty when nothing is but that it was pulled without being unmounted.
    QByteArray defects() const;

private:
    const QString name;
};
