// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

/// Sees how much of a widget is painted again, or of every widget when it watches the application.
class PaintWatch : public QObject {
    Q_OBJECT

public:
    explicit PaintWatch(QObject *watched);

    int paintings() const { return count; }
    /// In pixels.
    int lastArea() const { return last; }
    int largestArea() const { return largest; }

    bool eventFilter(QObject *object, QEvent *event) override;

private:
    int count = 0;
    int last = 0;
    int largest = 0;
};
