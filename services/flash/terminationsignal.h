// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>

#include <memory>

/// Brings SIGTERM and SIGINT into the event loop. One a process.
class TerminationSignal : public QObject {
    Q_OBJECT

public:
    TerminationSignal();
    ~TerminationSignal() override;

signals:
    void arrived();

private:
    int reader = -1;
    std::unique_ptr<QSocketNotifier> notifier;
};
