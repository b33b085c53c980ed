// SPDX-License-Identifier: GPL-3.0-or-later
#include "statuspanel.h"

#include <QPainter>

namespace {

constexpr int gapBelowPicture = 8;

} // namespace

StatusPanel::StatusPanel(QWidget *parent, int minimumWidth) : PopupPanel(parent) {
    setMinimumWidth(minimumWidth);
}

void StatusPanel::setPixmap(const QPixmap &pixmap) {
    headPicture = pixmap;
    setHeadHeight(pixmap.isNull() ? 0 : qRound(pixmap.deviceIndependentSize().height()) + gapBelowPicture);
    update();
}

void StatusPanel::invoke(const QRect &callerRect) {
    setCallerRect(callerRect);
    show();
    raise();
}

void StatusPanel::paintEvent(QPaintEvent *event) {
    PopupPanel::paintEvent(event);
    const QRect area = contentsArea();
    const int width = qRound(headPicture.deviceIndependentSize().width());
    QPainter(this).drawPixmap(area.x() + (area.width() - width) / 2, area.y(), headPicture);
}
