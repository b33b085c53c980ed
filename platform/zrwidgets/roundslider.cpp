// SPDX-License-Identifier: GPL-3.0-or-later
#include "roundslider.h"

#include <QMouseEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int highest = 100;
constexpr int step = 2;
constexpr int pageStep = 10;
constexpr qreal handleRadius = 17;
constexpr qreal trackHeight = 8;
constexpr qreal focusRingWidth = 3;

} // namespace

RoundSlider::RoundSlider(QWidget *parent) : QWidget(parent) {
    setProperty("palette_id", u"Slider"_s);
    setFocusPolicy(Qt::StrongFocus);
}

QSize RoundSlider::sizeHint() const {
    return {260, 48};
}

void RoundSlider::setPosition(int position) {
    if (std::exchange(currentPosition, position) == position)
        return;
    update();
    emit positionChanged(position);
}

void RoundSlider::moveTo(int position) {
    setPosition(qBound(0, position, highest));
}

void RoundSlider::moveBy(int difference) {
    moveTo(qBound(0, currentPosition, highest) + difference);
}

qreal RoundSlider::handleX() const {
    const qreal way = width() - 2 * (handleRadius + focusRingWidth);
    return handleRadius + focusRingWidth + way * qBound(0, currentPosition, highest) / highest;
}

int RoundSlider::positionAt(qreal x) const {
    const qreal way = width() - 2 * (handleRadius + focusRingWidth);
    return way > 0 ? qRound((x - handleRadius - focusRingWidth) * highest / way) : 0;
}

void RoundSlider::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const qreal middle = height() / 2.0;
    const QRectF track(handleRadius, middle - trackHeight / 2, width() - 2 * handleRadius, trackHeight);
    QRectF covered = track;
    covered.setRight(handleX());
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().mid());
    painter.drawRoundedRect(track, trackHeight / 2, trackHeight / 2);
    painter.setBrush(palette().highlight());
    painter.drawRoundedRect(covered, trackHeight / 2, trackHeight / 2);
    painter.setBrush(isHeld ? palette().highlight() : palette().brush(QPalette::Button));
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::Highlight), focusRingWidth) : QPen(Qt::NoPen));
    painter.drawEllipse(QPointF(handleX(), middle), handleRadius, handleRadius);
}

void RoundSlider::mousePressEvent(QMouseEvent *event) {
    isHeld = true;
    update();
    moveTo(positionAt(event->position().x()));
}

void RoundSlider::mouseMoveEvent(QMouseEvent *event) {
    if (isHeld)
        moveTo(positionAt(event->position().x()));
}

void RoundSlider::mouseReleaseEvent(QMouseEvent *) {
    isHeld = false;
    update();
}

void RoundSlider::keyPressEvent(QKeyEvent *event) {
    switch (event->key()) {
    case Qt::Key_Left:
        moveBy(-step);
        break;
    case Qt::Key_Right:
        moveBy(step);
        break;
    case Qt::Key_PageDown:
        moveBy(-pageStep);
        break;
    case Qt::Key_PageUp:
        moveBy(pageStep);
        break;
    case Qt::Key_End:
        moveTo(highest);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

void RoundSlider::wheelEvent(QWheelEvent *event) {
    if (const int turned = event->angleDelta().y(); turned != 0)
        moveBy(turned > 0 ? step : -step);
}
