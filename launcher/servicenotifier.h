// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QWidget;

/// Tells the service manager how the launcher is (sd_notify): that its first frame is on the screen, from then on
/// that its event loop turns, as often as the manager's watchdog wants, and that it ends.
///
/// Where no manager listens (NOTIFY_SOCKET is not set) it does nothing at all. GUI thread only.
class ServiceNotifier : public QObject {
    Q_OBJECT

public:
    /// `window` has not been shown yet; it stays the caller's.
    explicit ServiceNotifier(QWidget *window, QObject *parent = nullptr);

    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void tellReady();
    void tellAlive();
    void tellStopping();

private:
    QTimer firstFrame{this};
    QTimer watchdog{this};
};
