// SPDX-License-Identifier: GPL-3.0-or-later
#include "icontile.h"

#include "fittedtext.h"
#include "presskeys.h"
#include "tintedpicture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int pictureSize = 40;
constexpr int pictureLeft = 16;
constexpr int textLeft = 72;
constexpr int textRight = 12;
constexpr int textTop = 6;
constexpr qreal radius = 10;

bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

} // namespace

IconTile::IconTile(const QIcon &icon, const QString &title, QWidget *parent) : QAbstractButton(parent) {
    setIcon(icon);
    setText(title);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize IconTile::sizeHint() const {
    return {220, 56};
}

QSize IconTile::minimumSizeHint() const {
    return {textLeft + 40, pictureSize};
}

QPixmap IconTile::picture(bool isPressed) const {
    const QPixmap pixmap = icon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF());
    if (isPressed)
        return tintedPicture(pixmap, palette().color(QPalette::HighlightedText));
    return isDark(palette()) ? tintedPicture(pixmap, palette().color(QPalette::Highlight)) : pixmap;
}

void IconTile::paintEvent(QPaintEvent *) {
    const bool isPressed = isDown() || isChecked();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(isPressed ? QPalette::Highlight : QPalette::Mid), 1));
    painter.setBrush(isPressed ? palette().highlight() : palette().base());
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);

    painter.drawPixmap(pictureLeft, (height() - pictureSize) / 2, picture(isPressed));
    painter.setPen(palette().color(isPressed ? QPalette::HighlightedText : QPalette::Text));
    const QRect textRect = rect().adjusted(textLeft, textTop, -textRight, -textTop);
    FittedText::in(textRect.size(), text(), font(), FontSizes::Large)
        .draw(&painter, textRect, Qt::AlignVCenter | Qt::AlignLeft);

    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        if (isPressed)
            focus.state |= QStyle::State_On;
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void IconTile::keyPressEvent(QKeyEvent *event) {
    // Space presses and lets go by itself; Enter would otherwise go past a button that is in no dialog.
    if (isPressKey(event->key()) && event->key() != Qt::Key_Space)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
