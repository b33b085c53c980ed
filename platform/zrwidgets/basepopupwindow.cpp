// SPDX-License-Identifier: GPL-3.0-or-later
#include "basepopupwindow.h"

#include "dialogframe.h"
#include "popupplace.h"
#include "presskeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QWindow>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QMargins frameMargins(8, 8, 8, 8);
constexpr QMargins edgeMargins(4, 4, 4, 4);

} // namespace

BasePopupWindow::BasePopupWindow(QWidget *parent)
    : QWidget(parent, Qt::Popup | Qt::FramelessWindowHint), scrollBar(new QScrollBar(Qt::Vertical, this)) {
    setProperty("palette_id", u"GenericWindow"_s);
    setAutoFillBackground(true);
    // Letters and colours as in the window it belongs to.
    setAttribute(Qt::WA_WindowPropagation);
    // A press on the caller is to close the pop-up, not to open it again.
    setAttribute(Qt::WA_NoMouseReplay);
    scrollBar->hide();
    connect(scrollBar, &QScrollBar::valueChanged, this, &BasePopupWindow::scroll);
}

BasePopupWindow::~BasePopupWindow() {
    delete frame;
}

void BasePopupWindow::show(const QWidget *caller) {
    if (watchedCaller != caller) {
        if (watchedCaller)
            const_cast<QWidget *>(watchedCaller.get())->removeEventFilter(this);
        watchedCaller = caller;
        // To see it hidden; nothing of it is changed.
        const_cast<QWidget *>(caller)->installEventFilter(this);
    }
    show(QRect(caller->mapToGlobal(QPoint()), caller->size()));
}

void BasePopupWindow::show(const QRect &caller) {
    ensurePolished();
    show(caller, sizeHint());
}

void BasePopupWindow::show(const QRect &caller, const QSize &size) {
    place(caller, size);
    showFrame();
    focusFirstButton();
    QWidget::show();
    raise();
    if (const QWidget *const focused = focusWidget())
        scrollTo(focused);
}

QRect BasePopupWindow::bounds() const {
    const QWidget *const parent = parentWidget();
    return parent ? parent->window()->geometry() : screen()->availableGeometry();
}

void BasePopupWindow::place(const QRect &caller, const QSize &size) {
    const QRect room = bounds().marginsRemoved(edgeMargins);
    QSize wanted = size;
    endScrolling();
    if (layout()) {
        // The screen limits the size, not the layout.
        layout()->setSizeConstraint(QLayout::SetNoConstraint);
        if (layout()->totalMinimumSize().grownBy(frameMargins).height() > room.height())
            wanted.rwidth() += scrollBar->sizeHint().width();
    }
    wanted = wanted.boundedTo(maximumSize());
    setGeometry(placeBeside(caller, wanted.grownBy(frameMargins), room).marginsRemoved(frameMargins));
    setUpScrolling();
}

void BasePopupWindow::setUpScrolling() {
    const int needed = layout() ? layout()->totalMinimumSize().height() : 0;
    const int barWidth = scrollBar->sizeHint().width();
    scrollBar->setRange(0, qMax(0, needed - height()));
    scrollBar->setPageStep(height());
    scrollBar->setGeometry(width() - barWidth, 0, barWidth, height());
    scrollBar->setVisible(scrollBar->maximum() > 0);
    scrollBar->raise();
    scrollBar->setValue(0);
    scroll();
}

void BasePopupWindow::scroll() {
    if (scrollBar->maximum() == 0)
        return;
    const QSize needed = layout()->totalMinimumSize();
    const int contentsWidth = qMax(width() - scrollBar->width(), qMin(needed.width(), width()));
    // The layout would fit everything to the window.
    layout()->setEnabled(false);
    layout()->setGeometry(QRect(0, -scrollBar->value(), contentsWidth, needed.height()));
}

void BasePopupWindow::endScrolling() {
    scrollBar->setRange(0, 0);
    if (layout())
        layout()->setEnabled(true);
}

void BasePopupWindow::scrollTo(const QWidget *child) {
    const QRect place(child->mapTo(this, QPoint()), child->size());
    if (place.top() < 0)
        scrollBar->setValue(scrollBar->value() + place.top());
    else if (place.bottom() >= height())
        scrollBar->setValue(scrollBar->value() + place.bottom() + 1 - height());
}

void BasePopupWindow::showFrame() {
    QWidget *const below = parentWidget() ? parentWidget()->window() : QApplication::activeWindow();
    if (!below || below == this)
        return;
    // Part of the window below, so that its round corners need no compositor.
    if (!frame)
        frame = new DialogFrame(below);
    frame->setParent(below);
    frame->setPalette(palette());
    const QRect outside = geometry().marginsAdded(frameMargins);
    frame->setGeometry(QRect(below->mapFromGlobal(outside.topLeft()), outside.size()));
    frame->raise();
    frame->show();
}

void BasePopupWindow::focusFirstButton() {
    for (QAbstractButton *const button : findChildren<QAbstractButton *>()) {
        if (button->isEnabled() && !button->isHidden()) {
            button->setFocus(Qt::PopupFocusReason);
            return;
        }
    }
}

void BasePopupWindow::childEvent(QChildEvent *event) {
    QWidget::childEvent(event);
    auto *const button = qobject_cast<QAbstractButton *>(event->child());
    if (!event->polished() || !button)
        return;
    button->installEventFilter(this);
    // For clicks that no press led to.
    connect(button, &QAbstractButton::clicked, this, &QWidget::close, Qt::UniqueConnection);
}

bool BasePopupWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == watchedCaller && event->type() == QEvent::Hide)
        close();
    auto *const button = qobject_cast<QAbstractButton *>(watched);
    if (!button || button->window() != this)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn)
        scrollTo(button);
    return pressesButton(button, event) || QWidget::eventFilter(watched, event);
}

bool BasePopupWindow::pressesButton(QAbstractButton *button, QEvent *event) {
    const bool isKeyPress = event->type() == QEvent::KeyPress;
    if (isKeyPress || event->type() == QEvent::KeyRelease) {
        const auto *const key = static_cast<QKeyEvent *>(event);
        const bool isArrow = key->key() == Qt::Key_Up || key->key() == Qt::Key_Down;
        if (isKeyPress && isArrow)
            key->key() == Qt::Key_Up ? focusPreviousChild() : focusNextChild();
        if (!isPressKey(key->key()))
            return isArrow;
        if (key->isAutoRepeat())
            return true;
        // The key that opened the pop-up is let go over it: only a press seen here counts.
        if (isKeyPress)
            button->setDown(true);
        else if (button->isDown())
            choose(button);
        return true;
    }
    if (event->type() != QEvent::MouseButtonRelease || !button->isDown())
        return false;
    choose(button);
    return true;
}

void BasePopupWindow::choose(QAbstractButton *button) {
    const QPointer<QAbstractButton> chosen = button;
    button->setDown(false);
    close();
    if (chosen)
        chosen->click();
}

void BasePopupWindow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Back)
        close();
    else
        QWidget::keyPressEvent(event);
}

void BasePopupWindow::hideEvent(QHideEvent *event) {
    // Not deleted: the window below may be hiding all its children.
    if (frame)
        frame->hide();
    for (QAbstractButton *const button : findChildren<QAbstractButton *>())
        button->setDown(false);
    QWidget::hideEvent(event);
    giveKeysBack();
}

void BasePopupWindow::giveKeysBack() {
    QWidget *const below = parentWidget() ? parentWidget()->window() : nullptr;
    if (!below || !below->isVisible())
        return;
    // Later, and only if nothing that the choice has shown took them.
    QMetaObject::invokeMethod(
        below,
        [below] {
            const QWindow *const focused = QGuiApplication::focusWindow();
            if (below->isVisible() && (!focused || !focused->isVisible()))
                below->activateWindow();
        },
        Qt::QueuedConnection);
}
