// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractButton>

/// A plug-in's icon on a page: a picture and a name on a tile that fills its cell. The picture is drawn in
/// lines of one dark colour; pressed tiles, and the dark ones of the night, show it in the palette's own. A
/// long name is set smaller and on two lines (see FittedText); it never widens the page. A tile that can be
/// checked has a check box at its end. GUI thread only.
class IconTile : public QAbstractButton {
    Q_OBJECT

public:
    IconTile(const QIcon &icon, const QString &title, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPixmap picture(bool isLit) const;
    void drawGround(QPainter &painter, bool isLit) const;
    int textMargin() const;
    void drawBox(QPainter &painter) const;
    void drawFocusRing(QPainter &painter, bool isLit) const;
};
