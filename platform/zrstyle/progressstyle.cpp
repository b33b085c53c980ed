// SPDX-License-Identifier: GPL-3.0-or-later
#include "progressstyle.h"

#include "shapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionProgressBar>
#include <QtMath>

namespace {

constexpr int thickness = 24;
constexpr qreal stripeWidth = 16;

bool isHorizontal(const QStyleOption &option) {
    return option.state & QStyle::State_Horizontal;
}

bool isUnknown(const QStyleOptionProgressBar &option) {
    return option.minimum == 0 && option.maximum == 0;
}

/// The trough stays slim in the middle of what a layout gives it.
QRectF troughRect(const QStyleOption &option) {
    const QRectF whole = option.rect;
    const QSizeF size = isHorizontal(option) ? QSizeF(whole.width(), qMin<qreal>(whole.height(), thickness))
                                             : QSizeF(qMin<qreal>(whole.width(), thickness), whole.height());
    QRectF trough(QPointF(), size);
    trough.moveCenter(whole.center());
    return trough;
}

QPainterPath troughPath(const QStyleOption &option) {
    QPainterPath path;
    path.addRoundedRect(troughRect(option), Shapes::radius, Shapes::radius);
    return path;
}

qreal doneShare(const QStyleOptionProgressBar &option) {
    const qreal range = qreal(option.maximum) - option.minimum;
    return range > 0 ? qBound(0.0, (qreal(option.progress) - option.minimum) / range, 1.0) : 0;
}

QRectF doneRect(const QStyleOptionProgressBar &option) {
    QRectF rect = troughRect(option);
    const qreal share = doneShare(option);
    if (isHorizontal(option)) {
        const bool fromRight = (option.direction == Qt::RightToLeft) != option.invertedAppearance;
        fromRight ? rect.setLeft(rect.right() - rect.width() * share) : rect.setWidth(rect.width() * share);
    } else {
        option.invertedAppearance ? rect.setHeight(rect.height() * share)
                                  : rect.setTop(rect.bottom() - rect.height() * share);
    }
    return rect;
}

QPainterPath stripes(const QRectF &rect) {
    QPainterPath path;
    const qreal slant = rect.height();
    const int count = qCeil((rect.width() + slant) / (2 * stripeWidth));
    for (int i = 0; i < count; ++i) {
        const qreal x = rect.left() - slant + i * 2 * stripeWidth;
        path.addPolygon(QPolygonF{QPointF(x, rect.bottom()), QPointF(x + slant, rect.top()),
                                  QPointF(x + slant + stripeWidth, rect.top()),
                                  QPointF(x + stripeWidth, rect.bottom()), QPointF(x, rect.bottom())});
    }
    return path;
}

QPainterPath donePath(const QStyleOptionProgressBar &option) {
    if (isUnknown(option))
        return stripes(troughRect(option));
    QPainterPath path;
    path.addRect(doneRect(option));
    return path;
}

void drawTextWithin(const QStyleOptionProgressBar &option, const QRegion &region, QPalette::ColorRole role,
                    QPainter *painter) {
    painter->save();
    painter->setClipRegion(region, Qt::IntersectClip);
    painter->setPen(option.palette.color(role));
    painter->drawText(option.rect, Qt::AlignCenter | Qt::TextSingleLine, option.text);
    painter->restore();
}

} // namespace

void ProgressStyle::drawTrough(const QStyleOptionProgressBar &option, QPainter *painter) {
    Shapes::drawRounded(painter, troughRect(option), option.palette.mid(), Qt::NoPen);
}

void ProgressStyle::drawProgress(const QStyleOptionProgressBar &option, QPainter *painter) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const auto role = Shapes::isEnabled(option) ? QPalette::Highlight : QPalette::PlaceholderText;
    painter->fillPath(troughPath(option).intersected(donePath(option)), option.palette.brush(role));
    painter->restore();
}

void ProgressStyle::drawText(const QStyleOptionProgressBar &option, QPainter *painter) {
    if (!option.textVisible || isUnknown(option))
        return;
    const QRegion done = doneRect(option).toAlignedRect();
    const auto onDone = Shapes::isEnabled(option) ? QPalette::HighlightedText : QPalette::Window;
    drawTextWithin(option, done, onDone, painter);
    drawTextWithin(option, QRegion(option.rect) - done, QPalette::WindowText, painter);
}

QSize ProgressStyle::size(const QStyleOptionProgressBar &option, const QSize &contents) {
    return isHorizontal(option) ? QSize(contents.width(), qMax(contents.height(), thickness))
                                : QSize(qMax(contents.width(), thickness), contents.height());
}
