// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pluginlists.h"
#include "startstate.h"
#include "storecopy.h"

/// One plug-in that is replaced in its list, and the number of the Notice that stands there: the shipped library
/// "libnotice<NUMBER>.so". A library has one root object, so every place needs a Notice of its own.
struct Replacement {
    int notice = 1;
    ListedPlugin plugin;
    qint64 crashes = 0;
    QString trace;

    bool operator==(const Replacement &) const = default;
};

/// Which listed plug-ins are to be replaced. One library may be listed at several places. Where the Notices do not
/// suffice, the plug-in has number 0: it is left out without one.
QList<Replacement> replacements(const QList<ListedPlugin> &plugins, const QList<LeftOutPlugin> &leftOut,
                                int noticeCount);

/// How the copy of the store has to differ for that. `noticeDirectory` is the path of the Notices, relative to
/// "plugins"/"path", with a slash at its end when it is not empty.
StoreDifference differenceFor(const QList<Replacement> &replaced, const QSettings &store,
                              const QString &noticeDirectory);

/// What a Notice shows: a file "NUMBER.json" in the directory for each replacement. What was there goes.
void writeNotes(const QString &directory, const QList<Replacement> &replaced);
