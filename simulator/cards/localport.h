// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/socketport.h"

#include <QLocalServer>
#include <QLocalSocket>

/// A line over a socket of the Unix domain.
class LocalPort : public SocketPort<QLocalServer, QLocalSocket> {
public:
    explicit LocalPort(const QString &path);

    QString address() const override;
    bool listen() override;

private:
    QString socketPath;
};
