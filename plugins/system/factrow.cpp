// SPDX-License-Identifier: GPL-3.0-or-later
#include "factrow.h"

#include <fontsizes.h>

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastHeight = 36;
constexpr int usualHeight = 44;
constexpr int touchHeight = 52;
constexpr int padding = 12;
constexpr int captionWidth = 176;
constexpr int arrowWidth = 28;
constexpr int percentWidth = 64;
constexpr int barWidth = 104;
constexpr int barHeight = 8;

} // namespace

FactRow::FactRow(Kind kind, QWidget *parent) : QAbstractButton(parent), rowKind(kind) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setMinimumHeight(kind == LeadsOn ? touchHeight : leastHeight);
    setMaximumHeight(touchHeight);
    if (kind == Plain) {
        setFocusPolicy(Qt::NoFocus);
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}

void FactRow::show(const Fact &fact) {
    if (fact == shownFact)
        return;
    shownFact = fact;
    setText(fact.caption);
    update();
}

QSize FactRow::sizeHint() const {
    return {400, rowKind == LeadsOn ? touchHeight : usualHeight};
}

void FactRow::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void FactRow::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isDown())
        painter.fillRect(rect(), palette().highlight());
    painter.fillRect(QRect(0, height() - 1, width(), 1), palette().mid());

    QRect texts = rect().adjusted(padding, 0, -padding - arrowWidth, -1);
    if (shownFact.percent) {
        drawPercent(painter, texts);
        texts.setRight(texts.right() - percentWidth - barWidth - padding);
    }
    drawTexts(painter, texts);
    if (rowKind == LeadsOn)
        drawArrow(painter);
    if (hasFocus()) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }
}

void FactRow::drawTexts(QPainter &painter, const QRect &rect) const {
    const auto role = isDown() ? QPalette::HighlightedText : QPalette::PlaceholderText;
    painter.setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Normal));
    painter.setPen(palette().color(role));
    const QRect caption(rect.x(), rect.y(), captionWidth, rect.height());
    painter.drawText(caption, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(shownFact.caption, Qt::ElideRight, captionWidth));

    painter.setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Bold));
    painter.setPen(palette().color(isDown() ? QPalette::HighlightedText : QPalette::WindowText));
    const QRect text = rect.adjusted(captionWidth + padding, 0, 0, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     painter.fontMetrics().elidedText(shownFact.text, Qt::ElideRight, text.width()));
}

void FactRow::drawPercent(QPainter &painter, const QRect &rect) const {
    painter.setFont(FontSizes::sized(font(), FontSizes::Text, QFont::Bold));
    painter.setPen(palette().color(isDown() ? QPalette::HighlightedText : QPalette::WindowText));
    painter.drawText(rect, Qt::AlignVCenter | Qt::AlignRight, u"%1%"_s.arg(*shownFact.percent));

    QRectF bar(0, 0, barWidth, barHeight);
    bar.moveCenter(rect.center());
    bar.moveRight(rect.right() - percentWidth);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().mid());
    painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
    if (*shownFact.percent == 0)
        return;
    bar.setWidth(qMax<qreal>(barHeight, barWidth * *shownFact.percent / 100.0));
    painter.setBrush(isDown() ? palette().highlightedText() : palette().highlight());
    painter.drawRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
}

void FactRow::drawArrow(QPainter &painter) const {
    const QPointF tip(width() - padding, height() / 2.0);
    painter.setPen(QPen(palette().color(isDown() ? QPalette::HighlightedText : QPalette::Highlight), 2,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF{tip + QPointF(-7, -7), tip, tip + QPointF(-7, 7)});
}
