// SPDX-License-Identifier: GPL-3.0-or-later
#include "mounts.h"

#include <QFile>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostMounts = 256;

/// Blanks, line ends and backslashes in names are written as a backslash and three octal digits.
QString nameIn(const QByteArray &field) {
    QByteArray name;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int code = field[i] == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        isOctal = isOctal && i + 3 < field.size() && code < 256;
        name.append(isOctal ? static_cast<char>(code) : field[i]);
        i += isOctal ? 3 : 0;
    }
    return QFile::decodeName(name);
}

bool isLocal(const Mount &mount) {
    return mount.directory == "/"_L1 || (mount.device.startsWith(u'/') && !mount.device.startsWith("//"_L1));
}

} // namespace

QList<Mount> localMountsIn(QByteArrayView text) {
    QList<Mount> mounts;
    QSet<QString> devices;
    for (const QByteArray &line : text.toByteArray().split('\n')) {
        const QList<QByteArray> fields = line.simplified().split(' ');
        if (fields.size() < 3)
            continue;
        const Mount mount{nameIn(fields[0]), nameIn(fields[1]), nameIn(fields[2])};
        // A device that is seen again is bound to a second place, not another file system.
        if (!isLocal(mount) || devices.contains(mount.device) || mounts.size() >= mostMounts)
            continue;
        devices.insert(mount.device);
        mounts.append(mount);
    }
    return mounts;
}
