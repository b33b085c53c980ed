// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QList>
#include <QString>
#include <QStringList>

class QtArgIface;

/// `name` with the part that may be left out in square brackets: "h[elp]". The part before is the shortest that
/// none of `otherNames` starts with; a name without such a part is left as it is.
QString abbreviated(const QString &name, const QStringList &otherNames);

/// A line for each option: flags, names and descriptions in three columns.
QString helpText(const QList<QtArgIface *> &options, QChar delimiter);
