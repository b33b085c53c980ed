// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLocalSocket>

/// The shell of root that a board has on a line of its own.
class GuestShell {
public:
    struct Result {
        /// -1 when there was no answer in time.
        int status = -1;
        /// Standard output and standard error.
        QByteArray output;
    };

    /// Whether a shell answered on the socket `name`, which takes as long as the machine's start.
    bool connectTo(const QString &name);

    Result run(const QByteArray &command, int milliseconds = 30'000);

private:
    Result readUntil(const QByteArray &mark, int milliseconds);

    QLocalSocket socket;
    QByteArray received;
    int commands = 0;
};
