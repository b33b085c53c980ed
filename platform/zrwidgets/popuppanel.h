// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPixmap>
#include <QWidget>

class QVBoxLayout;

/// A panel that opens beside what called it, over everything else, until something outside it is pressed or
/// Escape is. Its widgets stand below each other. GUI thread only.
class PopupPanel : public QWidget {
    Q_OBJECT

public:
    explicit PopupPanel(QWidget *parent = nullptr);

    /// The caller's rectangle, in screen coordinates.
    void setCallerRect(const QRect &rect);
    QRect callerRect() const { return callerRectangle; }
    /// Pixels kept free between the caller and the panel.
    void setCallerRectMargin(int margin);
    /// Whether a panel that has no room beside its caller leaves the caller uncovered.
    void setClipCallerRect(bool clip);
    /// For panels that place their widgets themselves: the panel has the size of `rect` and no shadow, and lays out
    /// nothing.
    void setContentsRect(const QRect &rect);
    /// Puts `widget` below the others. The panel becomes its parent.
    void addToLayout(QWidget *widget);
    /// Fits the panel to its contents, beside the caller and inside the parent's window, or the screen.
    void doResize();

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    /// Keeps `height` pixels free above the widgets.
    void setHeadHeight(int height);
    QRect contentsArea() const;

private:
    QRect bounds() const;
    int shadowWidth() const;
    void clipToCaller();
    void takeBackdrop();

    QVBoxLayout *panelLayout;
    QRect callerRectangle;
    int callerMargin = 0;
    bool sparesCaller = false;
    /// Empty when the panel lays its widgets out.
    QRect fixedContents;
    QPixmap backdrop;
};
