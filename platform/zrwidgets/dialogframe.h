// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// The ground of a dialog's contents: page colour, a 2-pixel border, round corners. GUI thread only.
class DialogFrame : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *event) override;
};
