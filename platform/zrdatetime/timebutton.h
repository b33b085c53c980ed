// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>
#include <QTimer>

/// The clock in the header: time above date, in the local time zone. It looks at the system's clock at the turn
/// of each minute, so a clock that was set is shown right a minute later at the latest. GUI thread only.
class TimeButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit TimeButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void tick();

    QTimer minuteTimer;
};
