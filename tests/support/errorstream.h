// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QTemporaryFile>

/// Catches what the program writes to its standard error stream, byte for byte, from its construction on.
class ErrorStream {
public:
    ErrorStream();
    ~ErrorStream();
    ErrorStream(const ErrorStream &) = delete;
    ErrorStream &operator=(const ErrorStream &) = delete;

    /// What was written since the last call.
    QByteArray take();

private:
    QTemporaryFile file;
    int originalStream;
};
