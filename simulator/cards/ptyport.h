// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardport.h"

#include <QSocketNotifier>

#include <memory>

/// A serial line: a pseudo-terminal in raw mode.
class PtyPort : public CardPort {
    Q_OBJECT

public:
    ~PtyPort() override;

    QString address() const override;
    bool listen() override;
    void shut() override;
    void send(const QByteArray &bytes) override;

private:
    void read();

    int ourEnd = -1;
    /// Held open: without it every read fails while the launcher does not have the line open.
    int theirEnd = -1;
    QString device;
    std::unique_ptr<QSocketNotifier> notifier;
};
