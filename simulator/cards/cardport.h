// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>

/// The card's end of one line.
class CardPort : public QObject {
    Q_OBJECT

public:
    /// Where the launcher finds the other end; valid once listen() returned true.
    virtual QString address() const = 0;
    virtual bool listen() = 0;
    /// Hangs up and takes no more calls until listen().
    virtual void shut() = 0;
    virtual void send(const QByteArray &bytes) = 0;

signals:
    /// Somebody new is at the other end; a serial line cannot see that.
    void connected();
    void received(const QByteArray &bytes);
};
