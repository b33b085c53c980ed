// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardport.h"

#include <QPointer>

/// A line over a stream socket, one caller at a time: who calls later takes the line over.
template <typename Server, typename Socket>
class SocketPort : public CardPort {
public:
    SocketPort() { connect(&server, &Server::newConnection, this, &SocketPort::answer); }

    void shut() override {
        server.close();
        hangUp();
    }

    void send(const QByteArray &bytes) override {
        if (!peer)
            return;
        peer->write(bytes);
        // Hanging up drops what still waits.
        peer->flush();
    }

protected:
    Server server;

private:
    void answer() {
        hangUp();
        peer = server.nextPendingConnection();
        emit connected();
        connect(peer, &Socket::readyRead, this, [this] { emit received(peer->readAll()); });
        connect(peer, &Socket::disconnected, peer, &QObject::deleteLater);
    }

    void hangUp() {
        if (!peer)
            return;
        // Perhaps we are being called by it.
        peer->disconnect(this);
        peer->abort();
        peer->deleteLater();
        peer = nullptr;
    }

    QPointer<Socket> peer;
};
