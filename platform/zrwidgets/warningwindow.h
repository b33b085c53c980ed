// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "translucentwindow.h"

#include <QList>

class DialogFrame;
class MessageView;
class QHBoxLayout;

/// A modal message, or a question with two answers.
///
/// Messages that come while one is open wait and are shown one after the other; one that is open or waits already is
/// not shown twice. While no window behind is visible yet, the first message waits for it. Texts are plain,
/// however they look; long ones wrap and scroll. GUI thread only.
class WarningWindow : public TranslucentWindow {
    Q_OBJECT

public:
    explicit WarningWindow(QWidget *parent = nullptr);

    /// Asks and waits, in an event loop of its own. Not 0 when the user accepted, 0 when he rejected or closed the
    /// question. A message that was open is shown again afterwards.
    int exec(const QString &text, const QString &detail, const QString &acceptText,
             const QString &rejectText);

    using QWidget::show;
    /// Gives what is open and what waits to `heir`, and deletes the window. For owners that go before it.
    void handOverTo(WarningWindow *heir);

public slots:
    /// Shows a message with an OK button, and returns at once.
    void show(const QString &text, const QString &detail);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void fitContents() override;

private:
    struct Message {
        QString text;
        QString detail;
        bool operator==(const Message &) const = default;
    };

    void showFirst();
    void setMessage(const Message &message);
    void setRejectable(bool isRejectable);

    DialogFrame *frame;
    MessageView *view;
    QHBoxLayout *buttons;
    QPushButton *acceptButton;
    QPushButton *rejectButton;
    /// The first one is open when `isOpen`.
    QList<Message> messages;
    bool isOpen = false;
    bool isAsking = false;
};
