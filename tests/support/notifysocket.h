// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QTemporaryDir>

/// Listens where a service tells its manager how it is.
class NotifySocket {
public:
    NotifySocket();
    ~NotifySocket();
    NotifySocket(const NotifySocket &) = delete;
    NotifySocket &operator=(const NotifySocket &) = delete;

    /// For NOTIFY_SOCKET.
    QString path() const { return directory.filePath(QStringLiteral("notify")); }
    /// All messages up to now.
    const QByteArrayList &messages();

private:
    QTemporaryDir directory;
    int descriptor;
    QByteArrayList received;
};
