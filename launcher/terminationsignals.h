// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Ends the event loop in order, with status 0, when the process is told to stop (SIGTERM, SIGINT).
///
/// Made after the application object, which would put the platform's own handlers in place of these. One at a time;
/// the signals' former actions return when it goes. GUI thread only.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

private slots:
    void stop();
};
