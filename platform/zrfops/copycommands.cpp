// SPDX-License-Identifier: GPL-3.0-or-later
#include "copycommands.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

QString incompleteDirectory() {
    return u".zrfops-incomplete"_s;
}

QString absolute(const QString &path) {
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// A line for the shell that finds the directory for incomplete files in "$1" and the drive in "$2". A link of that name,
/// which another system may have put there, is removed and not followed.
CopyCommands::Command shell(const QString &line, const QString &destination) {
    const QString drive = absolute(destination);
    return {u"sh"_s, {u"-c"_s, line, u"copy"_s, drive + u'/' + incompleteDirectory(), drive}};
}

} // namespace

CopyCommands::Command CopyCommands::prepare(const QString &destination) {
    return shell(u"rm -rf --one-file-system -- \"$1\" && mkdir -m 700 -- \"$1\""_s, destination);
}

CopyCommands::Command CopyCommands::flush(const QString &destination) {
    return shell(u"rm -rf --one-file-system -- \"$1\"; exec sync --file-system \"$2\""_s, destination);
}

CopyCommands::Command CopyCommands::cleanUp(const QString &destination) {
    return shell(u"exec rm -rf --one-file-system -- \"$1\""_s, destination);
}

QString CopyCommands::source(const QString &path) {
    const QString whole = absolute(path);
    if (path.endsWith(u'/') || whole == "/"_L1)
        return whole + (whole.endsWith(u'/') ? "./"_L1 : "/./"_L1);
    const QFileInfo directory(whole);
    return QDir::cleanPath(directory.absolutePath() + u'/') + "/./"_L1 + directory.fileName() + u'/';
}

CopyCommands::Command CopyCommands::copy(const QStringList &sources, const QString &destination) {
    QStringList words{
        u"--recursive"_s,
        u"--relative"_s,
        // The drive itself may be mounted below a source.
        u"--one-file-system"_s,
        // FAT keeps even seconds, and a mount point's own time may not be ours to set.
        u"--times"_s,
        u"--omit-dir-times"_s,
        u"--modify-window=1"_s,
        // The whole list first: totals that stay.
        u"--no-inc-recursive"_s,
        // A file gets its final name when the drive has its data, and not before.
        u"--temp-dir=%1"_s.arg(incompleteDirectory()),
        u"--fsync"_s,
        u"--info=progress1,flist2,name0,nonreg0,stats0"_s,
        u"--no-human-readable"_s,
        u"--outbuf=None"_s,
        u"--"_s,
    };
    for (const QString &path : sources)
        words.append(source(path));
    words.append(absolute(destination) + u'/');
    return {u"rsync"_s, words};
}
