// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonObject>
#include <QLocalSocket>
#include <QStringList>

/// The line to the emulator: its machine protocol (QMP), commands and events as lines of JSON.
class MachineControl {
public:
    /// Whether the emulator answered on the socket `name` in time.
    bool connectTo(const QString &name);

    /// The answer's "return"; an empty object when it is an error, which is told on standard error.
    QJsonObject execute(const QString &command, const QJsonObject &arguments = {});

    /// Whether the event came, now or since it was asked for the last time, with its reason or the device that it is
    /// about: "SHUTDOWN guest-shutdown", "DEVICE_DELETED flashdrive".
    bool waitForEvent(const QString &event, int milliseconds);

private:
    /// The next message; an empty one when none came in time.
    QJsonObject read(int milliseconds);

    QLocalSocket socket;
    QStringList events;
};
