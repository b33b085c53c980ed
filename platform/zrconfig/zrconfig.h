// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariant>

/// A handle on one group, or on one value, of an application's configuration store.
///
/// The store is what QSettings keeps for organisation "talvenor" and that application: one text file a user
/// (QSettings manual, "INI" form, `$XDG_CONFIG_HOME/talvenor/APPLICATION.conf`) over the system-wide files of
/// the same name. Any QSettings of that organisation and application sees the same values.
///
/// Handles are short-lived locals: make one, read or write, drop it. They may be used on any thread, one
/// handle on one thread at a time.
///
/// A damaged user file is told once on standard error and kept aside as "FILE.damaged"; the store then has its
/// defaults. A value that cannot be stored is told on standard error, and the file stays as it was.
class ZrConfig {
public:
    ZrConfig(const QString &application, const QString &group);
    ZrConfig(const QString &application, const QString &group, const QString &key);
    virtual ~ZrConfig();

    /// On a group handle: the handle of one value in it.
    ZrConfig operator[](const QString &key) const;

    /// On a value handle: stores the value. It is on the disk when this returns, also if the power fails then.
    ZrConfig &operator=(const QVariant &value);

    /// On a value handle: the value as text, empty when it is absent.
    QString string() const;

    /// The text of a value that was read with QSettings. Hand-written text with a comma in it reads as a list there; to
    /// us it is one text, but for blanks that stood beside the commas.
    static QString textOf(const QVariant &value);

private:
    QString applicationName;
    QString groupName;
    QString keyName;
};
