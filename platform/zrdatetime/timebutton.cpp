// SPDX-License-Identifier: GPL-3.0-or-later
#include "timebutton.h"

#include "clocktext.h"

#include <fontsizes.h>

#include <QPainter>

namespace {

constexpr int rightMargin = 10;
constexpr int timeHeight = 24;
constexpr int dateHeight = 20;

} // namespace

TimeButton::TimeButton(QWidget *parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    minuteTimer.setSingleShot(true);
    minuteTimer.setTimerType(Qt::PreciseTimer);
    connect(&minuteTimer, &QTimer::timeout, this, &TimeButton::tick);
}

QSize TimeButton::sizeHint() const {
    return {140, timeHeight + dateHeight};
}

void TimeButton::showEvent(QShowEvent *) {
    tick();
}

void TimeButton::hideEvent(QHideEvent *) {
    minuteTimer.stop();
}

void TimeButton::tick() {
    update();
    minuteTimer.start(untilNextMinute(QDateTime::currentDateTime()));
}

void TimeButton::paintEvent(QPaintEvent *) {
    const QDateTime now = QDateTime::currentDateTime();
    const QRect text(0, (height() - timeHeight - dateHeight) / 2, width() - rightMargin, timeHeight);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setFont(FontSizes::sized(font(), FontSizes::Title, QFont::Bold));
    painter.drawText(text, Qt::AlignRight | Qt::AlignVCenter, clockTime(now));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.setFont(FontSizes::sized(font(), FontSizes::Small, QFont::Normal));
    painter.drawText(text.translated(0, timeHeight), Qt::AlignRight | Qt::AlignVCenter, clockDate(now));
}
