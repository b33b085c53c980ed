// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A horizontal slider with a round handle as large as a thumb, from 0 to 100. Pressing beside the handle moves it there; Left,
/// Right, Page and End keys move it too. GUI thread only.
class RoundSlider : public QWidget {
    Q_OBJECT

public:
    explicit RoundSlider(QWidget *parent = nullptr);

    int position() const { return currentPosition; }
    /// Takes any number; beyond 0 to 100 the handle stands at the end.
    void setPosition(int position);

    QSize sizeHint() const override;

signals:
    /// The position has changed, by the user or by setPosition().
    void positionChanged(int position);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void moveTo(int position);
    void moveBy(int difference);
    int positionAt(qreal x) const;
    qreal handleX() const;

    int currentPosition = 0;
    bool isHeld = false;
};
