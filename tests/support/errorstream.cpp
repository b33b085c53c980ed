// SPDX-License-Identifier: GPL-3.0-or-later
#include "errorstream.h"

#include <cstdio>
#include <unistd.h>

ErrorStream::ErrorStream() : originalStream(::dup(STDERR_FILENO)) {
    std::fflush(stderr);
    if (file.open())
        ::dup2(file.handle(), STDERR_FILENO);
}

ErrorStream::~ErrorStream() {
    std::fflush(stderr);
    ::dup2(originalStream, STDERR_FILENO);
    ::close(originalStream);
}

QByteArray ErrorStream::take() {
    std::fflush(stderr);
    file.seek(0);
    const QByteArray written = file.readAll();
    file.resize(0);
    file.seek(0);
    return written;
}
