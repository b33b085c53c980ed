// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/tcpport.h"

#include <QTcpSocket>

using namespace Qt::Literals::StringLiterals;

TcpPort::TcpPort() {
    connect(&server, &QTcpServer::newConnection, this, &TcpPort::answer);
}

QString TcpPort::address() const {
    return u"tcp:127.0.0.1:%1"_s.arg(port);
}

bool TcpPort::listen() {
    const bool listens = server.listen(QHostAddress::LocalHost, port);
    port = server.serverPort();
    return listens;
}

void TcpPort::shut() {
    server.close();
    hangUp();
}

void TcpPort::hangUp() {
    if (!peer)
        return;
    // Perhaps we are being called by it.
    peer->disconnect(this);
    peer->abort();
    peer->deleteLater();
    peer = nullptr;
}

void TcpPort::send(const QByteArray &bytes) {
    if (!peer)
        return;
    peer->write(bytes);
    // Hanging up drops what still waits.
    peer->flush();
}

void TcpPort::answer() {
    hangUp();
    peer = server.nextPendingConnection();
    emit connected();
    connect(peer, &QTcpSocket::readyRead, this, [this] { emit received(peer->readAll()); });
    connect(peer, &QTcpSocket::disconnected, peer, &QObject::deleteLater);
}
