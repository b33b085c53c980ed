// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A flash drive's only partition on a desk: a file system in an image file, mounted as the mount service would do it; or a
/// plain directory of no limited size, where this user may not mount. FAT where the kernel knows it, else ext4.
///
/// What is on a drive is kept while it is out, under its name.
class SimulatedDrive {
public:
    static constexpr int defaultMegabytes = 64;

    explicit SimulatedDrive(const QString &partition);

    /// The partition that is in, empty when there is none.
    static QString inserted();
    /// A name of a directory entry, and nothing more.
    static bool isPossibleName(const QString &partition);

    /// Makes it appear at the mount directory. The size counts for a drive that is used for the first time. An error
    /// text, or nothing.
    QString insert(int megabytes);
    /// Pulls it, whoever uses it. An error text, or nothing.
    QString remove();

    /// Of what kind the inserted drive is, empty for a directory.
    QString fileSystem() const { return fileSystemType; }
    QString mountDirectory() const;

private:
    struct FileSystem;

    QString insertDirectory() const;
    bool insertImage(const FileSystem &fileSystem, int megabytes) const;
    QString keptDirectory() const;

    QString name;
    QString fileSystemType;
};
