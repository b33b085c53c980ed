// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardport.h"

#include <QLocalServer>
#include <QPointer>

class QLocalSocket;

/// A line over a socket of the Unix domain.
class LocalPort : public CardPort {
    Q_OBJECT

public:
    explicit LocalPort(const QString &path);

    QString address() const override;
    bool listen() override;
    void shut() override;
    void send(const QByteArray &bytes) override;

private:
    void answer();
    void hangUp();

    QString socketPath;
    QLocalServer server;
    QPointer<QLocalSocket> peer;
};
