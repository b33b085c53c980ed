// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// The programs that a copy runs, one after the other (rsync manual; rm, mkdir and sync of the GNU core utilities). All
/// that touches the drive is done by them: a drive may keep whoever asks it waiting.
namespace CopyCommands {

struct Command {
    QString program;
    QStringList arguments;
};

/// Makes the directory for files that are not whole yet, empty. Fails when there is no drive or it cannot be written.
Command prepare(const QString &destination);
/// Copies each of `sources`, with all below it.
Command copy(const QStringList &sources, const QString &destination);
/// Takes away the directory for files that are not whole, and waits until the drive has all the rest.
Command flush(const QString &destination);
/// Takes away the directory for files that are not whole.
Command cleanUp(const QString &destination);

/// A source as rsync has to be told of it: the part after "/./" is made again in the destination. With a slash at the end
/// a link that stands for a directory is a directory. A source that ends in a slash gives its contents only.
QString source(const QString &path);

} // namespace CopyCommands
