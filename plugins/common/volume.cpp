// SPDX-License-Identifier: GPL-3.0-or-later
#include "volume.h"

#include <QFile>

#include <sys/stat.h>
#include <sys/statvfs.h>

std::optional<Volume> volumeOf(const QString &path) {
    const QByteArray name = QFile::encodeName(path);
    struct statvfs usage {};
    struct stat status {};
    if (::statvfs(name.constData(), &usage) != 0 || ::stat(name.constData(), &status) != 0)
        return std::nullopt;
    const quint64 block = usage.f_frsize;
    return Volume{block * usage.f_blocks, block * (usage.f_blocks - usage.f_bfree), block * usage.f_bavail,
                  status.st_dev};
}
