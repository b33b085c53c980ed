// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// What rsync is told (rsync manual).
namespace RsyncArguments {

/// Files are written here, below the destination, until they are whole.
QString incompleteDirectory();

/// The words for copying each of `sources`, with all below it, into `destination`.
QStringList copying(const QStringList &sources, const QString &destination);

/// A source as rsync has to be told of it: the part after "/./" is made again in the destination. With a slash at the end
/// a link that stands for a directory is a directory. A source that ends in a slash gives its contents only.
QString source(const QString &path);

} // namespace RsyncArguments
