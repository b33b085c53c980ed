// SPDX-License-Identifier: GPL-3.0-or-later
#include "notifysocket.h"

#include <QFile>

#include <array>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

NotifySocket::NotifySocket() : descriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0)) {
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, QFile::encodeName(path()).constData(), sizeof address.sun_path);
    if (::bind(descriptor, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
        qFatal("No socket at %s", address.sun_path);
}

NotifySocket::~NotifySocket() {
    ::close(descriptor);
}

const QByteArrayList &NotifySocket::messages() {
    std::array<char, 256> message;
    for (;;) {
        const ssize_t size = ::recv(descriptor, message.data(), message.size(), MSG_DONTWAIT);
        if (size < 0)
            return received;
        received.append(QByteArray(message.data(), size));
    }
}
