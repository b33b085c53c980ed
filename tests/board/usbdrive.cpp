// SPDX-License-Identifier: GPL-3.0-or-later
#include "usbdrive.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 megabyte = 1'048'576;
/// Where the partition begins, as partitioning programs have it.
constexpr qint64 partitionStart = megabyte;

struct Answer {
    int status = -1;
    QByteArray output;
};

Answer call(const QString &program, const QStringList &words, const QByteArray &input = {}) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, words);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(60'000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1, process.readAll()};
}

void demand(const Answer &answer) {
    if (answer.status != 0)
        throw std::runtime_error(answer.output.toStdString());
}

/// A drive that is pulled while it is mounted keeps the mark of a mounted one. The rest is told of every drive.
bool isAboutAPull(const QByteArray &line) {
    return line.isEmpty() || line.startsWith("fsck.fat ") || line.startsWith("Dirty bit is set") ||
           line.contains("removing dirty bit") || line.startsWith("Leaving filesystem unchanged") ||
           (line.contains(" files, ") && line.endsWith(" clusters"));
}

} // namespace

UsbDrive::UsbDrive(const QString &file, int megabytes) : name(file) {
    QFile::remove(name);
    QFile disk(name);
    if (!disk.open(QIODevice::WriteOnly) || !disk.resize(megabytes * megabyte))
        throw std::runtime_error("no room for a drive");
    demand(call(u"/sbin/sfdisk"_s, {u"-q"_s, name}, "start=1MiB, type=c\n"));
    demand(call(u"/sbin/mkfs.vfat"_s, {u"--offset"_s, QString::number(partitionStart / 512), name,
                                       QString::number((megabytes * megabyte - partitionStart) / 1024)}));
}

QMap<QString, QByteArray> UsbDrive::contents() const {
    const QTemporaryDir copy;
    // Directory and all below; it complains of a drive without any file, which is no mistake.
    call(u"mcopy"_s, {u"-s"_s, u"-n"_s, u"-Q"_s, u"-i"_s, u"%1@@%2"_s.arg(name).arg(partitionStart), u"::"_s,
                      copy.path()});
    QMap<QString, QByteArray> files;
    const QByteArray list =
        call(u"find"_s, {copy.path(), u"-type"_s, u"f"_s, u"-printf"_s, u"%P\\n"_s}).output;
    for (const QByteArray &path : list.split('\n')) {
        QFile file(copy.filePath(QString::fromUtf8(path)));
        if (!path.isEmpty() && file.open(QIODevice::ReadOnly))
            files.insert(QString::fromUtf8(path), file.readAll());
    }
    return files;
}

QByteArray UsbDrive::defects() const {
    const QTemporaryDir place;
    const QString partition = place.filePath(u"partition"_s);
    QFile disk(name);
    QFile part(partition);
    if (!disk.open(QIODevice::ReadOnly) || !disk.seek(partitionStart) || !part.open(QIODevice::WriteOnly))
        return "not readable";
    part.write(disk.readAll());
    part.close();
    const Answer answer = call(u"/sbin/fsck.vfat"_s, {u"-n"_s, partition});
    if (answer.status < 0)
        return "not checked: " + answer.output;
    QByteArray defects;
    for (const QByteArray &line : answer.output.split('\n')) {
        if (!isAboutAPull(line))
            defects += line + '\n';
    }
    return defects;
}
