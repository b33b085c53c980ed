// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPoint>
#include <QRect>

class QLayout;
class QScrollBar;
class QWidget;

/// Lets a widget whose layout needs more than the widget has be scrolled: by a thumb that drags anywhere, even
/// from a button on, by the wheel, by Page Up and Page Down, and by the focus, which draws its widget into view.
///
/// The widget's layout is a ScrolledLayout. It is given a rectangle of the needed length, of which the widget shows
/// a part. GUI thread only.
class ThumbScroll : public QObject {
    Q_OBJECT

public:
    /// `page` has its layout already and becomes the owner of this.
    ThumbScroll(QWidget *page, Qt::Orientation orientation);

    /// Length in pixels that the layout needs; while it is more than `page` has, a scroll bar stands at
    /// the right edge of a page that scrolls up and down.
    void setNeededLength(int pixels);
    void scrollTo(int offset);
    /// The rectangle of the needed length, as it lies before anything is scrolled.
    QRect wholeRect(const QRect &shown) const;
    /// How far its widgets are moved from there.
    QPoint shift() const;
    /// Scrolls as far as is needed to show the child, or its beginning.
    void showWhole(const QWidget *child);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isHorizontal() const { return orientation == Qt::Horizontal; }
    int along(const QPoint &point) const { return isHorizontal() ? point.x() : point.y(); }
    int shownLength() const;
    int farthestOffset() const;
    void moveLayout();
    void moveBar();
    bool drag(QWidget *pressed, QEvent *event);

    QWidget *page;
    QScrollBar *bar = nullptr;
    Qt::Orientation orientation;
    int needed = 0;
    int shownFrom = 0;
    int offsetAtPress = 0;
    QPoint pressPosition;
    bool isPressed = false;
    bool isDragged = false;
};

/// Moves every widget of the layout and of the layouts in it.
void moveWidgets(QLayout *layout, const QPoint &by);

/// A Qt layout that a ThumbScroll moves.
template <typename Layout>
class ScrolledLayout : public Layout {
public:
    using Layout::Layout;

    const ThumbScroll *scroll = nullptr;

    void setGeometry(const QRect &rect) override {
        if (!scroll)
            return Layout::setGeometry(rect);
        // Grids cut off what lies at negative coordinates, so the widgets are laid out first and moved then.
        moveWidgets(this, -shift);
        Layout::setGeometry(scroll->wholeRect(rect));
        shift = scroll->shift();
        moveWidgets(this, shift);
    }

private:
    QPoint shift;
};
