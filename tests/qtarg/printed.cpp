// SPDX-License-Identifier: GPL-3.0-or-later
#include "printed.h"

#include <QTemporaryFile>

#include <cstdio>
#include <unistd.h>

QByteArray printedBy(const std::function<void()> &print) {
    QTemporaryFile file;
    if (!file.open())
        return "no temporary file";
    std::fflush(stdout);
    const int originalOutput = ::dup(STDOUT_FILENO);
    ::dup2(file.handle(), STDOUT_FILENO);
    print();
    ::dup2(originalOutput, STDOUT_FILENO);
    ::close(originalOutput);
    file.seek(0);
    return file.readAll();
}
