// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

class DialogFrame;
class QAbstractButton;
class QScrollBar;

/// A small window beside what called it, to choose from: closed by a press outside, Escape or Back, by a click of
/// one of its buttons, and when the caller is hidden.
///
/// Up and Down go from button to button, Enter and Space press. It closes before the button tells its click, so
/// that whatever the click shows finds no pop-up in its way. A maximum size is that of the contents; the frame lies
/// around them, in the window below. Contents that are higher than the window scroll. GUI thread only.
class BasePopupWindow : public QWidget {
    Q_OBJECT

public:
    explicit BasePopupWindow(QWidget *parent);
    ~BasePopupWindow() override;

    /// Opens beside `caller`, inside the parent's window, or the screen when there is no parent.
    void show(const QWidget *caller);
    /// The same beside a rectangle in screen coordinates.
    void show(const QRect &caller);
    /// The same with a size of the caller's choice, as far as it fits.
    void show(const QRect &caller, const QSize &size);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void childEvent(QChildEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QRect bounds() const;
    void place(const QRect &caller, const QSize &size);
    void setUpScrolling();
    void scroll();
    void endScrolling();
    void scrollTo(const QWidget *child);
    void showFrame();
    void focusFirstButton();
    bool pressesButton(QAbstractButton *button, QEvent *event);
    void choose(QAbstractButton *button);
    void giveKeysBack();

    QPointer<DialogFrame> frame;
    QPointer<const QWidget> watchedCaller;
    QScrollBar *scrollBar;
};
