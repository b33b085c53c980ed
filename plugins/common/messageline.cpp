// SPDX-License-Identifier: GPL-3.0-or-later
#include "messageline.h"

#include <fontsizes.h>
#include <lamp.h>

#include <QPainter>

namespace {

constexpr int lineHeight = 40;
constexpr int textLeft = 48;
constexpr int margin = 28;
constexpr int lampWidth = 12;

} // namespace

MessageLine::MessageLine(QWidget *parent) : QWidget(parent) {
    setFixedHeight(lineHeight);
    hide();
}

void MessageLine::tellSuccess(const QString &message) {
    tell(message, true);
}

void MessageLine::tellFailure(const QString &message) {
    tell(message, false);
}

void MessageLine::clear() {
    shownMessage.clear();
    hide();
}

void MessageLine::tell(const QString &message, bool success) {
    shownMessage = message;
    isSuccess = success;
    setAccessibleName(message);
    show();
    update();
}

void MessageLine::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.fillRect(QRect(0, 0, width(), 1), palette().mid());
    drawLamp(&painter, QRectF(margin, 0, lampWidth, height()), isSuccess ? Good : Bad);
    painter.setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Bold));
    painter.setPen(palette().color(QPalette::Text));
    const QRect text = rect().adjusted(textLeft, 0, -margin, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(shownMessage, Qt::ElideRight, text.width()));
}
