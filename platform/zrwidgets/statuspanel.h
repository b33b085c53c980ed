// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "popuppanel.h"

/// A pop-up panel with a picture at its head, below which it lays out every widget that is made or put under it
/// as a child. An empty panel has exactly one child object, its layout. GUI thread only.
class StatusPanel : public PopupPanel {
    Q_OBJECT

public:
    /// `minimumWidth` is that of the widget in pixels, its shadow included.
    StatusPanel(QWidget *parent, int minimumWidth);

    /// The picture at the head; a null one takes it away.
    void setPixmap(const QPixmap &pixmap);
    QPixmap pixmap() const { return headPicture; }
    /// Puts the picture on a dark ground, for pictures that are drawn for the dark column.
    void setHeadOnDark(bool onDark);

    /// Opens the panel beside `callerRect`, which is in screen coordinates.
    void invoke(const QRect &callerRect);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap headPicture;
    bool headIsOnDark = false;
};
