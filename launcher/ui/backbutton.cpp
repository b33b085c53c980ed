// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/backbutton.h"

#include <fontsizes.h>

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int mostWidth = 300;
constexpr int padding = 12;

} // namespace

BackButton::BackButton(QWidget *parent) : QPushButton(parent) {
    setMaximumWidth(mostWidth);
}

QFont BackButton::textFont() const {
    return text().contains(u'\n') ? FontSizes::sized(font(), FontSizes::Small, QFont::Bold) : font();
}

QSize BackButton::sizeHint() const {
    const QSize textSize = QFontMetrics(textFont()).size(0, text());
    return QPushButton::sizeHint().boundedTo({textSize.width() + 2 * padding, QWIDGETSIZE_MAX});
}

void BackButton::paintEvent(QPaintEvent *) {
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    painter.setFont(textFont());
    const QFontMetrics metrics(textFont());
    QStringList lines = text().split(u'\n');
    for (QString &line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, width() - 2 * padding);
    option.text = lines.join(u'\n');
    option.fontMetrics = metrics;
    painter.drawControl(QStyle::CE_PushButtonLabel, option);
}
