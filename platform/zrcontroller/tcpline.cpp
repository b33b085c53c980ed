// SPDX-License-Identifier: GPL-3.0-or-later
#include "tcpline.h"

#include <QHostInfo>
#include <QNetworkProxy>

#include <future>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The addresses of `host`, none when it is not found in time. The system's own look-up knows no time limit, so
/// it runs beside us and is left alone when it takes too long.
QList<QHostAddress> lookUp(const QString &host, QDeadlineTimer deadline) {
    const QHostAddress number(host);
    if (!number.isNull())
        return {number};
    std::promise<QList<QHostAddress>> promise;
    std::future<QList<QHostAddress>> answer = promise.get_future();
    std::thread([host, promise = std::move(promise)]() mutable {
        promise.set_value(QHostInfo::fromName(host).addresses());
    }).detach();
    if (answer.wait_for(std::chrono::milliseconds(deadline.remainingTime())) != std::future_status::ready)
        return {};
    return answer.get();
}

} // namespace

TcpLine::TcpLine(const QString &host, quint16 port) : hostName(host), portNumber(port) {
    socket.setProxy(QNetworkProxy::NoProxy);
    socket.setReadBufferSize(mostBytesWaiting);
    connect(&socket, &QTcpSocket::connected, this, [this] {
        socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
        emit opened();
    });
    connect(&socket, &QTcpSocket::stateChanged, this, [this](QAbstractSocket::SocketState state) {
        if (state == QAbstractSocket::UnconnectedState)
            emit closed();
    });
}

void TcpLine::beginOpening() {
    socket.connectToHost(hostName, portNumber);
}

bool TcpLine::open(QDeadlineTimer deadline) {
    const QList<QHostAddress> addresses = lookUp(hostName, deadline);
    lookUpError = addresses.isEmpty() ? u"host %1 not found"_s.arg(hostName) : QString();
    for (const QHostAddress &address : addresses) {
        socket.connectToHost(address, portNumber);
        if (socket.waitForConnected(static_cast<int>(deadline.remainingTime())))
            return true;
        socket.abort();
    }
    return false;
}

void TcpLine::close() {
    socket.abort();
}

bool TcpLine::isOpen() const {
    return socket.state() == QAbstractSocket::ConnectedState;
}

QString TcpLine::errorString() const {
    return lookUpError.isEmpty() ? socket.errorString() : lookUpError;
}
