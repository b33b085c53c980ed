// SPDX-License-Identifier: GPL-3.0-or-later
#include "smalldrive.h"

#include <QFile>

#include <sys/mount.h>

SmallDrive::SmallDrive(int kilobytes, const QString &place, bool isReadOnly)
    : mountPoint(place.isEmpty() ? directory.path() : place) {
    const QByteArray data = "size=" + QByteArray::number(kilobytes) + 'k';
    const unsigned long flags = isReadOnly ? MS_RDONLY : 0;
    mounted =
        ::mount("none", QFile::encodeName(mountPoint).constData(), "tmpfs", flags, data.constData()) == 0;
}

SmallDrive::~SmallDrive() {
    if (mounted)
        ::umount2(QFile::encodeName(mountPoint).constData(), MNT_DETACH);
}
