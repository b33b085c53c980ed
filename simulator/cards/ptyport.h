// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardport.h"

#include <QSocketNotifier>

#include <memory>

/// A serial line: a pseudo-terminal in raw mode.
class PtyPort : public CardPort {
    Q_OBJECT

public:
    /// `link` is made to point to the terminal's other end, whose own name changes whenever it is opened anew.
    explicit PtyPort(const QString &link);
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
    QString devicePath;
    std::unique_ptr<QSocketNotifier> notifier;
};
