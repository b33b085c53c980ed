// SPDX-License-Identifier: GPL-3.0-or-later
#include "unixline.h"

#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr unsigned long retryPauseMs = 20;

} // namespace

UnixLine::UnixLine(const QString &path) : socketPath(path) {
    socket.setReadBufferSize(mostBytesWaiting);
    connect(&socket, &QLocalSocket::connected, this, &CardLine::opened);
    // A refused connection is told as an error only.
    connect(&socket, &QLocalSocket::stateChanged, this, [this](QLocalSocket::LocalSocketState state) {
        if (state == QLocalSocket::UnconnectedState)
            emit closed();
    });
}

// A listener that accepts nobody, with its queue full, leaves the socket connecting; it would try again without a pause.
void UnixLine::beginOpening() {
    socket.connectToServer(socketPath);
    if (socket.state() == QLocalSocket::ConnectingState)
        socket.abort();
}

bool UnixLine::open(QDeadlineTimer deadline) {
    while (true) {
        socket.connectToServer(socketPath);
        if (socket.state() != QLocalSocket::ConnectingState)
            return isOpen();
        socket.abort();
        if (deadline.hasExpired())
            return false;
        QThread::msleep(retryPauseMs);
    }
}

void UnixLine::close() {
    socket.abort();
}

bool UnixLine::isOpen() const {
    return socket.state() == QLocalSocket::ConnectedState;
}

QString UnixLine::errorString() const {
    // Behind the name of Qt's own function.
    return socket.errorString().section(u": "_s, -1);
}
