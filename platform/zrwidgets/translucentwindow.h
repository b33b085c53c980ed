// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QPixmap>

class QPushButton;
class QVBoxLayout;

/// A modal dialog that covers its parent's window: in the middle its contents, around them the window, dimmed.
///
/// It needs no window manager: it lies exactly on the parent's window and follows its size. What is seen dimmed is a
/// picture taken when the dialog is shown. A parent that is itself a hidden dialog is passed over for the window behind
/// it. Left and Right go from button to button, Escape and the Back key reject.
/// GUI thread only.
class TranslucentWindow : public QDialog {
    Q_OBJECT

public:
    /// At least `sideMargin` pixels stay free left and right of the contents, at least `edgeMargin` above and below.
    /// `dimming` is how dark the rest becomes, from 0 (as it is) to 255 (nothing is seen of it).
    TranslucentWindow(QWidget *parent, int sideMargin, int edgeMargin, int dimming);

    /// A button of the height and type that dialogs have; `isDefault`: Enter presses it unless another
    /// button has the focus. The dialog becomes its parent until a layout says otherwise.
    QPushButton *createButton(const QString &text, bool isDefault);
    /// Puts `content` in the middle, below what was added before, with that many pixels around it.
    void addContent(QWidget *content, int left, int top, int right, int bottom);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    /// The nearest visible window behind the dialog; its last ancestor where none is visible.
    QWidget *coveredWindow() const;
    /// The largest size that contents can have.
    QSize wholeRoom() const;
    /// The largest size that contents should have: long lines are hard to read.
    QSize roomForContents() const;
    /// Called before the dialog is shown and when its size has changed, to fit the contents to the room.
    virtual void fitContents();

private:
    void comeToFront();
    void cover();
    void giveKeysBack();

    QVBoxLayout *contentsLayout;
    QSize freeMargins;
    int dimmingAlpha;
    QPixmap backdrop;
};
