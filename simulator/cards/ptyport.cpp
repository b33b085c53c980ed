// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/ptyport.h"

#include <QFile>

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <pty.h>
#include <termios.h>
#include <unistd.h>

PtyPort::PtyPort(const QString &link) : devicePath(link) {}

PtyPort::~PtyPort() {
    PtyPort::shut();
}

QString PtyPort::address() const {
    return QLatin1String("serial:") + devicePath;
}

bool PtyPort::listen() {
    std::array<char, 64> name{};
    termios settings{};
    ::cfmakeraw(&settings);
    if (::openpty(&ourEnd, &theirEnd, name.data(), &settings, nullptr) != 0)
        return false;
    ::fcntl(ourEnd, F_SETFL, O_NONBLOCK);
    if (!QFile::link(QString::fromLatin1(name.data()), devicePath))
        return false;
    notifier = std::make_unique<QSocketNotifier>(ourEnd, QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, &PtyPort::read);
    return true;
}

void PtyPort::shut() {
    notifier.reset();
    // What has that name later may be another card's.
    if (ourEnd >= 0)
        QFile::remove(devicePath);
    for (int *const end : {&ourEnd, &theirEnd}) {
        if (*end >= 0)
            ::close(*end);
        *end = -1;
    }
}

void PtyPort::send(const QByteArray &bytes) {
    // What a full line does not take is lost, as on a wire without flow control.
    if (ourEnd >= 0 && ::write(ourEnd, bytes.constData(), static_cast<size_t>(bytes.size())) < 0 &&
        errno != EAGAIN)
        shut();
}

void PtyPort::read() {
    std::array<char, 4096> buffer{};
    const ssize_t length = ::read(ourEnd, buffer.data(), buffer.size());
    if (length > 0)
        emit received(QByteArray(buffer.data(), length));
}
