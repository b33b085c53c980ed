// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardport.h"

#include <QPointer>
#include <QTcpServer>

class QTcpSocket;

/// A line over TCP, on the loopback address only.
class TcpPort : public CardPort {
    Q_OBJECT

public:
    TcpPort();

    QString address() const override;
    bool listen() override;
    void shut() override;
    void send(const QByteArray &bytes) override;

private:
    void answer();
    void hangUp();

    QTcpServer server;
    /// Kept over shut(), so that the address stays.
    quint16 port = 0;
    QPointer<QTcpSocket> peer;
};
