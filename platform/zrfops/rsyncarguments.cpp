// SPDX-License-Identifier: GPL-3.0-or-later
#include "rsyncarguments.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

QString RsyncArguments::incompleteDirectory() {
    return u".zrfops-incomplete"_s;
}

QString RsyncArguments::source(const QString &path) {
    const QString whole = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.endsWith(u'/') || whole == "/"_L1)
        return whole + (whole.endsWith(u'/') ? "./"_L1 : "/./"_L1);
    const QFileInfo directory(whole);
    return QDir::cleanPath(directory.absolutePath() + u'/') + "/./"_L1 + directory.fileName() + u'/';
}

QStringList RsyncArguments::copying(const QStringList &sources, const QString &destination) {
    QStringList words{
        u"--recursive"_s,
        u"--relative"_s,
        // FAT keeps even seconds, and a mount point's own time may not be ours to set.
        u"--times"_s,
        u"--omit-dir-times"_s,
        u"--modify-window=1"_s,
        // The whole list first: totals that stay.
        u"--no-inc-recursive"_s,
        u"--temp-dir=%1"_s.arg(incompleteDirectory()),
        u"--info=progress1,flist2,name0,nonreg0,stats0"_s,
        u"--no-human-readable"_s,
        u"--outbuf=None"_s,
        u"--"_s,
    };
    for (const QString &path : sources)
        words.append(source(path));
    words.append(QDir::cleanPath(QFileInfo(destination).absoluteFilePath()) + u'/');
    return words;
}
