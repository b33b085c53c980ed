// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// The Back button of the header: a long text ends in an ellipsis, a text of two lines is set smaller. GUI thread only.
class BackButton : public QPushButton {
    Q_OBJECT

public:
    explicit BackButton(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont() const;
};
