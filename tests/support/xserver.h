// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

/// A virtual X server of the test's own, with a program that presses keys on it.
class XServer {
public:
    XServer();
    ~XServer();

    /// Name of the display, empty when the server did not come up.
    QString display() const { return displayName; }
    /// Presses and lets go, in the words of xdotool.
    bool key(const QStringList &names) const;
    bool xdotool(const QStringList &words) const;

private:
    QProcess server;
    QString displayName;
};
