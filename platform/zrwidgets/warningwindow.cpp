// SPDX-License-Identifier: GPL-3.0-or-later
#include "warningwindow.h"

#include "dialogframe.h"
#include "messageview.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>

#include <iostream>

namespace {

constexpr int dimming = 150;
constexpr int margin = 16;
constexpr int padding = 24;
constexpr int spacing = 20;
constexpr int buttonWidth = 150;
// Beyond this nobody reads them one by one.
constexpr qsizetype mostWaiting = 50;

} // namespace

WarningWindow::WarningWindow(QWidget *parent)
    : TranslucentWindow(parent, margin, margin, dimming),
      frame(new DialogFrame(this)),
      view(new MessageView(frame)),
      buttons(new QHBoxLayout),
      acceptButton(createButton(QString(), true)),
      rejectButton(createButton(QString(), false)) {
    for (QPushButton *const button : {acceptButton, rejectButton})
        button->setMinimumWidth(buttonWidth);
    buttons->addStretch();
    buttons->addWidget(acceptButton);
    buttons->addStretch();
    buttons->addWidget(rejectButton);
    auto *const column = new QVBoxLayout(frame);
    column->setContentsMargins(padding, padding, padding, padding);
    column->setSpacing(spacing);
    column->addWidget(view);
    column->addLayout(buttons);
    addContent(frame, 0, 0, 0, 0);
    connect(acceptButton, &QPushButton::clicked, this, &QDialog::accept);
    connect(rejectButton, &QPushButton::clicked, this, &QDialog::reject);
}

int WarningWindow::exec(const QString &text, const QString &detail, const QString &acceptText,
                        const QString &rejectText) {
    if (std::exchange(isOpen, false))
        hide();
    isAsking = true;
    acceptButton->setText(acceptText);
    rejectButton->setText(rejectText);
    setRejectable(true);
    setMessage({text, detail});
    const QPointer<WarningWindow> alive = this;
    const int answer = QDialog::exec();
    if (!alive)
        return answer;
    isAsking = false;
    showFirst();
    return answer;
}

void WarningWindow::show(const QString &text, const QString &detail) {
    const Message message{text.left(MessageView::longestShown + 1),
                          detail.left(MessageView::longestShown + 1)};
    if (messages.contains(message))
        return;
    if (messages.size() >= mostWaiting) {
        std::cerr << "Too many messages wait to be read; left out: " << qPrintable(text.left(200))
                  << std::endl;
        return;
    }
    messages.append(message);
    showFirst();
}

void WarningWindow::showFirst() {
    if (isOpen || isAsking || messages.isEmpty())
        return;
    // A dialog before its window would have the screen for itself. The window's Show event calls again.
    if (coveredWindow() && !coveredWindow()->isVisible())
        return;
    isOpen = true;
    acceptButton->setText(tr("OK"));
    setRejectable(false);
    setMessage(messages.first());
    open();
}

void WarningWindow::setMessage(const Message &message) {
    view->setMessage(message.text, message.detail);
    acceptButton->setFocus();
}

/// Two buttons stand at the outer edges, a single one in the middle.
void WarningWindow::setRejectable(bool isRejectable) {
    rejectButton->setVisible(isRejectable);
    buttons->setStretch(0, isRejectable ? 0 : 1);
    buttons->setStretch(2, 1);
}

void WarningWindow::fitContents() {
    const QSize room = roomForContents();
    const int buttonsHeight = acceptButton->sizeHint().expandedTo(acceptButton->minimumSize()).height();
    view->fit(room.width() - 2 * padding, room.height() - 2 * padding - spacing - buttonsHeight);
}

void WarningWindow::hideEvent(QHideEvent *event) {
    TranslucentWindow::hideEvent(event);
    // However it was closed: by a button, a key, or from outside.
    if (event->spontaneous() || !isOpen)
        return;
    isOpen = false;
    messages.removeFirst();
    QMetaObject::invokeMethod(this, &WarningWindow::showFirst, Qt::QueuedConnection);
}

void WarningWindow::handOverTo(WarningWindow *heir) {
    isOpen = false;
    hide();
    for (const Message &message : std::exchange(messages, {}))
        heir->show(message.text, message.detail);
    deleteLater();
}

bool WarningWindow::eventFilter(QObject *watched, QEvent *event) {
    if (event->type() == QEvent::Show && !messages.isEmpty())
        QMetaObject::invokeMethod(this, &WarningWindow::showFirst, Qt::QueuedConnection);
    return TranslucentWindow::eventFilter(watched, event);
}

void WarningWindow::keyPressEvent(QKeyEvent *event) {
    if (!view->scrollByKey(event->key()))
        TranslucentWindow::keyPressEvent(event);
}
