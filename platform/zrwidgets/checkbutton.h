// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

/// A button that stays in when it is chosen: a light tile that turns to the accent colour. Its text may have
/// several lines and is set smaller where the button is narrower than the text (see FittedText). A button can be as
/// narrow as its longest word in the smallest letters, set tighter by a quarter. GUI thread only.
class CheckButton : public QPushButton {
    Q_OBJECT

public:
    explicit CheckButton(QWidget *parent = nullptr);
    explicit CheckButton(const QString &text, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont() const;
    qreal smallestWordWidth(const QString &words) const;
};
