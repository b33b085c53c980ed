// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class ThumbScroll;
template <typename Layout>
class ScrolledLayout;

/// The row of buttons at the foot of a page. Buttons that need more than the row has get narrower together, as
/// far as their texts allow, and then the row can be dragged sideways; the button that is checked comes into view.
/// The row never widens its window. GUI thread only.
class ControlBottomPanel : public QWidget {
    Q_OBJECT

public:
    enum Position { Left = 0, RightEnd = 1 };

    explicit ControlBottomPanel(QWidget *parent = nullptr);

    /// Puts `widget` behind those at the same position (any number but RightEnd is Left). The row becomes its
    /// parent.
    void addWidget(QWidget *widget, int position, int stretch, Qt::Alignment alignment);
    /// Takes `widget` out of the row; it stays a child of it.
    void removeWidget(QWidget *widget);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;

private slots:
    void showChecked();

private:
    ScrolledLayout<QHBoxLayout> *rowLayout;
    QHBoxLayout *leftLayout;
    QHBoxLayout *rightLayout;
    ThumbScroll *scroll;
};
