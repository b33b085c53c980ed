// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/simulateddrive.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include <array>
#include <sys/mount.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 bytesPerMegabyte = 1024 * 1024;

QString systemRoot() {
    return qEnvironmentVariable("ZR_SYSROOT");
}

QString mountRoot() {
    return systemRoot() + "/media"_L1;
}

/// Where drives lie while they are out.
QString drawer() {
    return systemRoot() + "/var/lib/simulated-flash"_L1;
}

/// Quiet: what it has to say of a desk where nobody may mount is of no use.
bool run(const QString &program, const QStringList &arguments) {
    // Where the tools for file systems are is no user's search path.
    QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        path = QStandardPaths::findExecutable(program, {u"/usr/sbin"_s, u"/sbin"_s});
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(path, arguments);
    return process.waitForFinished() && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

bool makeFile(const QString &path, int megabytes) {
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.resize(megabytes * bytesPerMegabyte);
}

} // namespace

struct SimulatedDrive::FileSystem {
    QString type;
    QStringList makeOptions;
    QString mountOptions;
};

SimulatedDrive::SimulatedDrive(const QString &partition) : name(partition) {}

QString SimulatedDrive::inserted() {
    return QDir(mountRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden).value(0);
}

bool SimulatedDrive::isPossibleName(const QString &partition) {
    return !partition.isEmpty() && !partition.contains(u'/') && partition != "."_L1 && partition != ".."_L1;
}

QString SimulatedDrive::mountDirectory() const {
    return mountRoot() + u'/' + name;
}

QString SimulatedDrive::keptDirectory() const {
    return drawer() + u'/' + name;
}

QString SimulatedDrive::insert(int megabytes) {
    if (!QDir().mkpath(drawer()) || !QDir().mkpath(mountDirectory()))
        return u"cannot make %1"_s.arg(mountDirectory());
    const QString owner = u"%1:%2"_s.arg(::getuid()).arg(::getgid());
    const std::array fileSystems{
        FileSystem{u"vfat"_s, {}, u",utf8,uid=%1,gid=%2"_s.arg(::getuid()).arg(::getgid())},
        FileSystem{u"ext4"_s, {u"-E"_s, u"root_owner="_s + owner}, QString()},
    };
    for (const FileSystem &fileSystem : fileSystems) {
        if (QFileInfo(keptDirectory()).isDir() || !insertImage(fileSystem, megabytes))
            continue;
        fileSystemType = fileSystem.type;
        return {};
    }
    return insertDirectory();
}

bool SimulatedDrive::insertImage(const FileSystem &fileSystem, int megabytes) const {
    const QString image = keptDirectory() + u'.' + fileSystem.type;
    const QStringList mountWords{u"-t"_s, fileSystem.type,
                                 u"-o"_s, u"loop,nosuid,nodev,noexec"_s + fileSystem.mountOptions,
                                 image,   mountDirectory()};
    if (QFileInfo::exists(image))
        return run(u"mount"_s, mountWords);
    if (makeFile(image, megabytes) &&
        run(u"mkfs."_s + fileSystem.type, fileSystem.makeOptions + QStringList{image}) &&
        run(u"mount"_s, mountWords))
        return true;
    QFile::remove(image);
    return false;
}

QString SimulatedDrive::insertDirectory() const {
    QDir().rmdir(mountDirectory());
    if (QFileInfo(keptDirectory()).isDir() && !QDir().rename(keptDirectory(), mountDirectory()))
        return u"cannot move %1 to %2"_s.arg(keptDirectory(), mountDirectory());
    QDir().mkpath(mountDirectory());
    return {};
}

QString SimulatedDrive::remove() {
    const QByteArray directory = QFile::encodeName(mountDirectory());
    // Not umount(8): it looks into a table that may change while it reads, and then finds no such mount.
    const bool isUnmounted = ::umount2(directory.constData(), MNT_DETACH) == 0;
    // A program that was about to write to the drive may have written to the directory below it.
    const bool isRemoved = isUnmounted ? QDir(mountDirectory()).removeRecursively()
                                       : QDir().rename(mountDirectory(), keptDirectory());
    return isRemoved ? QString() : u"cannot take %1 away"_s.arg(mountDirectory());
}
