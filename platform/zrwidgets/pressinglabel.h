// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>

/// A picture that can be pressed, drawn in lines of one light colour, which is dimmed in the colours for the night.
/// GUI thread only.
class PressingLabel : public QLabel {
    Q_OBJECT

public:
    /// With `keepsPicture` the picture stays as it is, by night and while it is held; without, it is put on an accent ground.
    PressingLabel(QWidget *parent, bool keepsPicture);

    /// The picture as it looks while it is held; null when there is no picture.
    QPixmap downPixmap() const;

    QSize sizeHint() const override;

signals:
    /// Let go inside after a press, or Space or Enter was pressed while it had the focus.
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void setHeld(bool held);

    bool pictureIsKept;
    bool isHeld = false;
};
