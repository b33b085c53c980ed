// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/socketport.h"

#include <QTcpServer>
#include <QTcpSocket>

/// A line over TCP, on the loopback address only.
class TcpPort : public SocketPort<QTcpServer, QTcpSocket> {
public:
    QString address() const override;
    bool listen() override;

private:
    /// Kept over shut(), so that the address stays.
    quint16 port = 0;
};
