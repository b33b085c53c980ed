// SPDX-License-Identifier: GPL-3.0-or-later
#include "thumbscroll.h"

#include <QAbstractButton>
#include <QApplication>
#include <QChildEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QScrollBar>

namespace {

// Left free beside what comes into view.
constexpr int gap = 8;

} // namespace

ThumbScroll::ThumbScroll(QWidget *page_, Qt::Orientation orientation_)
    : QObject(page_), page(page_), orientation(orientation_) {
    // What is scrolled must not make a window of the page's own larger.
    page->layout()->setSizeConstraint(QLayout::SetNoConstraint);
    page->installEventFilter(this);
    for (QWidget *const child : page->findChildren<QWidget *>(Qt::FindDirectChildrenOnly))
        child->installEventFilter(this);
}

int ThumbScroll::shownLength() const {
    return isHorizontal() ? page->width() : page->height();
}

int ThumbScroll::farthestOffset() const {
    return qMax(0, needed - shownLength());
}

void ThumbScroll::setNeededLength(int pixels) {
    needed = pixels;
    shownFrom = qBound(0, shownFrom, farthestOffset());
    moveLayout();
    moveBar();
}

void ThumbScroll::scrollTo(int offset) {
    const int bounded = qBound(0, offset, farthestOffset());
    if (std::exchange(shownFrom, bounded) == bounded)
        return;
    moveLayout();
    moveBar();
}

QRect ThumbScroll::wholeRect(const QRect &shown) const {
    return isHorizontal() ? shown.adjusted(0, 0, farthestOffset(), 0)
                          : shown.adjusted(0, 0, 0, farthestOffset());
}

QPoint ThumbScroll::shift() const {
    return isHorizontal() ? QPoint(-shownFrom, 0) : QPoint(0, -shownFrom);
}

void ThumbScroll::moveLayout() {
    page->layout()->setGeometry(page->rect());
}

void ThumbScroll::moveBar() {
    if (isHorizontal())
        return;
    if (!bar) {
        if (farthestOffset() == 0)
            return;
        bar = new QScrollBar(Qt::Vertical, page);
        bar->setFocusPolicy(Qt::NoFocus);
        connect(bar, &QScrollBar::valueChanged, this, &ThumbScroll::scrollTo);
    }
    const int width = bar->sizeHint().width();
    bar->setGeometry(page->width() - width, 0, width, page->height());
    bar->setPageStep(shownLength());
    bar->setRange(0, farthestOffset());
    bar->setValue(shownFrom);
    bar->setVisible(farthestOffset() > 0);
    bar->raise();
}

bool ThumbScroll::eventFilter(QObject *watched, QEvent *event) {
    auto *const widget = qobject_cast<QWidget *>(watched);
    if (!widget || watched == bar)
        return false;
    switch (event->type()) {
    case QEvent::ChildAdded:
        if (watched == page)
            static_cast<QChildEvent *>(event)->child()->installEventFilter(this);
        break;
    case QEvent::FocusIn:
        if (watched != page)
            showWhole(widget);
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (farthestOffset() == 0 || (key != Qt::Key_PageUp && key != Qt::Key_PageDown))
            break;
        scrollTo(shownFrom + (key == Qt::Key_PageUp ? -shownLength() : shownLength()));
        return true;
    }
    case QEvent::Wheel:
        if (farthestOffset() == 0)
            break;
        scrollTo(shownFrom - static_cast<QWheelEvent *>(event)->angleDelta().y() / 2);
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return drag(widget, event);
    default:
        break;
    }
    return false;
}

bool ThumbScroll::drag(QWidget *pressed, QEvent *event) {
    const auto *const mouse = static_cast<QMouseEvent *>(event);
    const QPoint position = mouse->globalPosition().toPoint();
    if (event->type() == QEvent::MouseButtonPress) {
        isPressed = true;
        isDragged = false;
        pressPosition = position;
        offsetAtPress = shownFrom;
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        isPressed = false;
        return std::exchange(isDragged, false);
    }
    const int distance = along(position - pressPosition);
    if (isPressed && !isDragged && farthestOffset() > 0 &&
        qAbs(distance) >= QApplication::startDragDistance()) {
        isDragged = true;
        // What lies under the thumb was not meant.
        if (auto *const button = qobject_cast<QAbstractButton *>(pressed))
            button->setDown(false);
    }
    if (isDragged)
        scrollTo(offsetAtPress - distance);
    return isDragged;
}

void ThumbScroll::showWhole(const QWidget *child) {
    page->layout()->activate();
    const QRect place = child->geometry();
    const int start = along(place.topLeft()) - gap;
    const int overEnd = along(place.bottomRight()) + 1 + gap - shownLength();
    if (start < 0)
        scrollTo(shownFrom + start);
    else if (overEnd > 0)
        scrollTo(shownFrom + qMin(overEnd, start));
}

void moveWidgets(QLayout *layout, const QPoint &by) {
    if (by.isNull())
        return;
    for (int index = 0; index < layout->count(); ++index) {
        QLayoutItem *const item = layout->itemAt(index);
        if (QWidget *const widget = item->widget())
            widget->move(widget->pos() + by);
        else if (QLayout *const inner = item->layout())
            moveWidgets(inner, by);
    }
}
