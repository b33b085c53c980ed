// SPDX-License-Identifier: GPL-3.0-or-later
#include "unixline.h"

UnixLine::UnixLine(const QString &path) : socketPath(path) {
    socket.setReadBufferSize(mostBytesWaiting);
    connect(&socket, &QLocalSocket::connected, this, &CardLine::opened);
    // A refused connection is told as an error only.
    connect(&socket, &QLocalSocket::stateChanged, this, [this](QLocalSocket::LocalSocketState state) {
        if (state == QLocalSocket::UnconnectedState)
            emit closed();
    });
}

void UnixLine::beginOpening() {
    socket.connectToServer(socketPath);
}

bool UnixLine::open(QDeadlineTimer deadline) {
    socket.connectToServer(socketPath);
    return socket.waitForConnected(static_cast<int>(deadline.remainingTime()));
}

void UnixLine::close() {
    socket.abort();
}

bool UnixLine::isOpen() const {
    return socket.state() == QLocalSocket::ConnectedState;
}
