// SPDX-License-Identifier: GPL-3.0-or-later
#include "statuspanel.h"

#include <QPainter>

namespace {

constexpr int gapBelowPicture = 8;
constexpr int groundPadding = 8;
constexpr qreal radius = 10;

} // namespace

StatusPanel::StatusPanel(QWidget *parent, int minimumWidth) : PopupPanel(parent) {
    setMinimumWidth(minimumWidth);
}

void StatusPanel::setPixmap(const QPixmap &pixmap) {
    headPicture = pixmap;
    setHeadHeight(pixmap.isNull() ? 0 : qRound(pixmap.deviceIndependentSize().height()) + gapBelowPicture);
    update();
}

void StatusPanel::setHeadOnDark(bool onDark) {
    headIsOnDark = onDark;
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
    if (headPicture.isNull())
        return;
    const QRect place(area.x() + (area.width() - width) / 2, area.y(), width,
                      qRound(headPicture.deviceIndependentSize().height()));
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (headIsOnDark) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette().brush(QPalette::Active, QPalette::Button));
        painter.drawRoundedRect(place.adjusted(-groundPadding, 0, groundPadding, 0), radius, radius);
    }
    painter.drawPixmap(place.topLeft(), headPicture);
}
