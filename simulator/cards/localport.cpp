// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/localport.h"

#include <QLocalSocket>

LocalPort::LocalPort(const QString &path) : socketPath(path) {
    server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server, &QLocalServer::newConnection, this, &LocalPort::answer);
}

QString LocalPort::address() const {
    return QLatin1String("unix:") + socketPath;
}

bool LocalPort::listen() {
    QLocalServer::removeServer(socketPath);
    return server.listen(socketPath);
}

void LocalPort::shut() {
    server.close();
    hangUp();
}

void LocalPort::hangUp() {
    if (!peer)
        return;
    // Perhaps we are being called by it.
    peer->disconnect(this);
    peer->abort();
    peer->deleteLater();
    peer = nullptr;
}

void LocalPort::send(const QByteArray &bytes) {
    if (!peer)
        return;
    peer->write(bytes);
    // Hanging up drops what still waits.
    peer->flush();
}

void LocalPort::answer() {
    hangUp();
    peer = server.nextPendingConnection();
    emit connected();
    connect(peer, &QLocalSocket::readyRead, this, [this] { emit received(peer->readAll()); });
    connect(peer, &QLocalSocket::disconnected, peer, &QObject::deleteLater);
}
