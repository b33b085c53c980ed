// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialline.h"

SerialLine::SerialLine(const QString &deviceFile, int baudRate) {
    port.setPortName(deviceFile);
    port.setBaudRate(baudRate);
    port.setReadBufferSize(mostBytesWaiting);
    // The device is gone: unplugged, or its other end was closed.
    connect(&port, &QSerialPort::errorOccurred, this, [this](QSerialPort::SerialPortError error) {
        if (error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
            error == QSerialPort::WriteError)
            close();
    });
}

void SerialLine::beginOpening() {
    if (port.open(QIODevice::ReadWrite))
        emit opened();
    else
        emit closed();
}

bool SerialLine::open(QDeadlineTimer) {
    // Opening a device does not wait.
    return port.open(QIODevice::ReadWrite);
}

void SerialLine::close() {
    if (!port.isOpen())
        return;
    port.close();
    emit closed();
}

bool SerialLine::isOpen() const {
    return port.isOpen();
}
