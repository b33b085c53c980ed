// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardaddress.h"

#include <QDeadlineTimer>
#include <QObject>

#include <memory>

class QIODevice;

/// One line to a card, whatever it runs over. GUI thread only.
///
/// What was received waits in the device, at most 64 KiB of it; the sender is held up by the system then.
class CardLine : public QObject {
    Q_OBJECT

public:
    static std::unique_ptr<CardLine> make(const CardAddress &address);

    /// Begins to open; opened() or closed() follows, perhaps before this returns.
    virtual void beginOpening() = 0;
    /// Opens, waiting no longer than the deadline. False with errorString() set when that fails.
    virtual bool open(QDeadlineTimer deadline) = 0;
    virtual void close() = 0;
    virtual bool isOpen() const = 0;
    virtual QIODevice *device() = 0;
    virtual QString errorString() const = 0;
    /// Whether what the card still has to say arrives even when the line was closed and opened again.
    virtual bool outlivesClosing() const { return false; }

signals:
    void opened();
    void closed();

protected:
    static constexpr qint64 mostBytesWaiting = 64 * 1024;
};
