// SPDX-License-Identifier: GPL-3.0-or-later
#include "popupcorners.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QVariant>
#include <QWidget>

namespace {

constexpr char backdropProperty[] = "zr_backdrop";

bool isPopup(const QWidget *widget) {
    return widget->windowType() == Qt::Popup;
}

/// The menu that a menu was opened from is passed over for the window behind both.
QWidget *windowBelow(const QWidget *popup) {
    QWidget *below = nullptr;
    for (const QWidget *parent = popup->parentWidget(); parent; parent = below->parentWidget()) {
        below = parent->window();
        if (!isPopup(below))
            return below;
    }
    QWidget *const active = QApplication::activeWindow();
    return active && !isPopup(active) ? active : nullptr;
}

} // namespace

void PopupCorners::take(QWidget *popup) {
    QWidget *const below = isPopup(popup) ? windowBelow(popup) : nullptr;
    if (!below)
        return;
    const QPoint place = below->mapFromGlobal(popup->mapToGlobal(QPoint()));
    popup->setProperty(backdropProperty, below->grab(QRect(place, popup->size())));
}

void PopupCorners::draw(const QWidget *popup, QPainter *painter) {
    if (popup && isPopup(popup))
        painter->drawPixmap(0, 0, popup->property(backdropProperty).value<QPixmap>());
}
