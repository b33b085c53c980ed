// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// Shows a picture whole: scaled down to the room there is, never up.
class PictureView : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// A null picture leaves the view empty and gives the memory back.
    void setPicture(const QImage &picture);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void fit();

    QImage wholePicture;
    QPixmap fittedPicture;
};
