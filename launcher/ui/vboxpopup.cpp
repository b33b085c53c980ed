// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/vboxpopup.h"

#include <QVBoxLayout>

namespace {

constexpr int spacing = 5;
constexpr int spareHeight = 4;
constexpr double smallestWidth = 140;
constexpr double widthFactor = 1.5;

} // namespace

VBoxPopup::VBoxPopup(const QList<QWidget *> &widgets, const QWidget *callerWidget, QWidget *parent)
    : BasePopupWindow(parent), caller(callerWidget) {
    auto *const box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(spacing);
    int height = 0;
    double width = smallestWidth;
    for (QWidget *const widget : widgets) {
        height += widget->minimumHeight() + box->spacing() + spareHeight;
        width = qMax(width, widthFactor * widget->sizeHint().width());
        box->addWidget(widget);
    }
    setMaximumSize(static_cast<int>(width), height);
}

void VBoxPopup::show() {
    if (caller)
        BasePopupWindow::show(caller);
}
