// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardline.h"

#include <QSerialPort>

/// A serial line: 8 data bits, no parity, one stop bit, no flow control.
class SerialLine : public CardLine {
    Q_OBJECT

public:
    SerialLine(const QString &deviceFile, int baudRate);

    void beginOpening() override;
    bool open(QDeadlineTimer deadline) override;
    void close() override;
    bool isOpen() const override;
    QIODevice *device() override { return &port; }
    QString errorString() const override { return port.errorString(); }
    bool outlivesClosing() const override { return true; }

private:
    QSerialPort port;
};
