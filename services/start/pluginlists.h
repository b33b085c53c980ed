// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

class QSettings;

/// A plug-in that a collection's list of the configuration names.
struct ListedPlugin {
    QString collection;
    QString group;
    /// Its library, without links and dots where it exists.
    QString library;

    bool operator==(const ListedPlugin &) const = default;
};

/// All plug-ins that the launcher would look for, collection by collection, in loading order.
QList<ListedPlugin> listedPlugins(const QSettings &store);

/// The path of a library as the running launcher has it: without links and dots where it exists.
QString resolvedLibrary(const QString &file);

/// The first of the modules that is a listed plug-in's library. Both are resolved paths.
std::optional<QString> topmostListed(const QStringList &modules, const QList<ListedPlugin> &plugins);

/// The group that stands in the list for a plug-in that is left out.
QString noticeGroup(const QString &group);

/// A collection's list with each of `groups` replaced by its notice. Empty names stay.
QString withNotices(const QString &list, const QStringList &groups);

/// The list as it was before `withNotices()`, whatever else was changed in it since.
QString withoutNotices(const QString &list, const QStringList &groups);
