// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

#include <chrono>

class QWidget;

/// Beats while a widget can be seen, and once at the moment it appears. While it is hidden there is no timer
/// that could wake the processor.
class VisibleTimer : public QObject {
    Q_OBJECT

public:
    /// Follows `widget`, which becomes the parent.
    explicit VisibleTimer(QWidget *widget);

    void setInterval(std::chrono::milliseconds interval);
    std::chrono::milliseconds interval() const { return timer.intervalAsDuration(); }
    bool isRunning() const { return timer.isActive(); }

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    /// The widget appeared. Comes before the first `beat()`.
    void appeared();
    void beat();

private:
    QTimer timer;
};
