// SPDX-License-Identifier: GPL-3.0-or-later
#include "pressinglabel.h"

#include "darkpalette.h"
#include "presskeys.h"
#include "tintedpicture.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int touchHeight = 46;
constexpr qreal radius = 10;
constexpr qreal focusRingWidth = 3;

void drawGround(QPainter &painter, const QRectF &rect, const QBrush &fill, const QPen &pen) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill);
    painter.setPen(pen);
    painter.drawRoundedRect(rect, radius, radius);
}

} // namespace

PressingLabel::PressingLabel(QWidget *parent, bool keepsPicture)
    : QLabel(parent), pictureIsKept(keepsPicture) {
    setProperty("palette_id", u"Picture"_s);
    setFocusPolicy(Qt::TabFocus);
}

QPixmap PressingLabel::downPixmap() const {
    QPixmap picture = pixmap();
    if (picture.isNull() || pictureIsKept)
        return picture;
    QPixmap down(picture.size());
    down.setDevicePixelRatio(picture.devicePixelRatio());
    down.fill(Qt::transparent);
    QPainter painter(&down);
    drawGround(painter, QRectF(QPointF(), picture.deviceIndependentSize()), palette().highlight(), Qt::NoPen);
    painter.drawPixmap(0, 0, tintedPicture(picture, palette().color(QPalette::HighlightedText)));
    return down;
}

QSize PressingLabel::sizeHint() const {
    return QLabel::sizeHint().expandedTo({0, touchHeight});
}

void PressingLabel::paintEvent(QPaintEvent *event) {
    const bool isLit = isHeld && !pictureIsKept;
    {
        QPainter painter(this);
        if (isLit)
            drawGround(painter, rect(), palette().highlight(), Qt::NoPen);
        if (hasFocus()) {
            const qreal inset = focusRingWidth / 2;
            drawGround(painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), Qt::NoBrush,
                       QPen(palette().color(QPalette::Mid), focusRingWidth));
        }
        if (!pixmap().isNull() && !pictureIsKept && (isLit || isDark(palette()))) {
            const auto ink = isLit ? QPalette::HighlightedText : QPalette::PlaceholderText;
            const QPixmap picture = tintedPicture(pixmap(), palette().color(ink));
            const QRect room = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
            style()->drawItemPixmap(&painter, room, int(alignment()), picture);
            return;
        }
    }
    QLabel::paintEvent(event);
}

void PressingLabel::setHeld(bool held) {
    if (std::exchange(isHeld, held) != held)
        update();
}

void PressingLabel::mousePressEvent(QMouseEvent *) {
    setHeld(true);
}

void PressingLabel::mouseReleaseEvent(QMouseEvent *event) {
    const bool wasHeld = isHeld;
    setHeld(false);
    if (wasHeld && rect().contains(event->pos()))
        emit clicked();
}

void PressingLabel::keyPressEvent(QKeyEvent *event) {
    if (isPressKey(event->key()))
        emit clicked();
    else
        QLabel::keyPressEvent(event);
}
