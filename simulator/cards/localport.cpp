// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/localport.h"

LocalPort::LocalPort(const QString &path) : socketPath(path) {
    server.setSocketOptions(QLocalServer::UserAccessOption);
}

QString LocalPort::address() const {
    return QLatin1String("unix:") + socketPath;
}

bool LocalPort::listen() {
    QLocalServer::removeServer(socketPath);
    return server.listen(socketPath);
}
