// SPDX-License-Identifier: GPL-3.0-or-later
#include "icontile.h"

#include "darkpalette.h"
#include "fittedtext.h"
#include "presskeys.h"
#include "tilebody.h"
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
constexpr int boxSize = 28;
constexpr int gapBeforeBox = 8;
constexpr qreal pressedLineWidth = 2;
constexpr qreal pressedInset = 4;
constexpr qreal pressedRadius = 6;

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

QPixmap IconTile::picture(bool isLit) const {
    const QPixmap pixmap = icon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF());
    if (isLit)
        return tintedPicture(pixmap, palette().color(QPalette::HighlightedText));
    return isDark(palette()) ? tintedPicture(pixmap, palette().color(QPalette::Highlight)) : pixmap;
}

void IconTile::paintEvent(QPaintEvent *) {
    const bool isLit = isDown() || isChecked();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawGround(painter, isLit);
    painter.drawPixmap(pictureLeft, (height() - pictureSize) / 2, picture(isLit));
    painter.setPen(palette().color(isLit ? QPalette::HighlightedText : QPalette::Text));
    const QRect textRect = rect().adjusted(textLeft, textTop, -textMargin(), -textTop);
    FittedText::in(textRect.size(), text(), font(), FontSizes::Large)
        .draw(&painter, textRect, Qt::AlignVCenter | Qt::AlignLeft);
    if (isCheckable())
        drawBox(painter);
    if (hasFocus())
        drawFocusRing(painter, isLit);
}

void IconTile::drawGround(QPainter &painter, bool isLit) const {
    const TileBody body{size(), devicePixelRatioF(),
                        palette().color(isLit ? QPalette::Highlight : QPalette::Base),
                        palette().color(isLit ? QPalette::Highlight : QPalette::Midlight)};
    painter.drawImage(0, 0, body.picture());
    if (!isDown())
        return;
    // A checked tile is lit already.
    painter.setPen(QPen(palette().color(QPalette::HighlightedText), pressedLineWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(pressedInset, pressedInset, -pressedInset, -pressedInset),
                            pressedRadius, pressedRadius);
}

int IconTile::textMargin() const {
    return textRight + (isCheckable() ? boxSize + gapBeforeBox : 0);
}

void IconTile::drawBox(QPainter &painter) const {
    QStyleOptionViewItem box;
    box.initFrom(this);
    box.rect = QRect(width() - textRight - boxSize, (height() - boxSize) / 2, boxSize, boxSize);
    box.state.setFlag(isChecked() ? QStyle::State_On : QStyle::State_Off);
    style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, this);
}

void IconTile::drawFocusRing(QPainter &painter, bool isLit) const {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    focus.state.setFlag(QStyle::State_On, isLit);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
}

void IconTile::keyPressEvent(QKeyEvent *event) {
    // Space presses and lets go by itself; Enter would otherwise go past a button that is in no dialog.
    if (isPressKey(event->key()) && event->key() != Qt::Key_Space)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}
