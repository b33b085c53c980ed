// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/tcpport.h"

using namespace Qt::Literals::StringLiterals;

QString TcpPort::address() const {
    return u"tcp:127.0.0.1:%1"_s.arg(port);
}

bool TcpPort::listen() {
    const bool listens = server.listen(QHostAddress::LocalHost, port);
    port = server.serverPort();
    return listens;
}
