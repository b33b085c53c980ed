// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardline.h"

#include <QTcpSocket>

/// A TCP connection. The host is a number or a name.
class TcpLine : public CardLine {
    Q_OBJECT

public:
    TcpLine(const QString &host, quint16 port);

    void beginOpening() override;
    bool open(QDeadlineTimer deadline) override;
    void close() override;
    bool isOpen() const override;
    QIODevice *device() override { return &socket; }
    QString errorString() const override;

private:
    QString hostName;
    quint16 portNumber;
    QString lookUpError;
    QTcpSocket socket;
};
