// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

class QPushButton;
class TimeButton;

/// The bar at the top: Back button, caption (the label's own text) and clock.
class LauncherHeader : public QLabel {
    Q_OBJECT

public:
    explicit LauncherHeader(QWidget *parent = nullptr);

    QPushButton *backButton() const { return backPushButton; }
    void hideBackButton();
    /// Shows the Back button as "◄ TEXT", also when `text` is empty.
    void setBackButtonText(const QString &text);
    void setupLayout();

    QSize minimumSizeHint() const override;

protected:
    /// Draws the caption in the middle of the header, elided where it would reach the buttons.
    void paintEvent(QPaintEvent *event) override;

private:
    QRect captionRect() const;

    QPushButton *backPushButton;
    TimeButton *timeButton;
};
