// SPDX-License-Identifier: GPL-3.0-or-later
#include "ledpanel.h"

#include "lamp.h"
#include "presskeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int tallestRow = 32;
// Lower rows would be too dense to be told apart.
constexpr int lowestRow = 17;
constexpr int columnWidth = 76;
constexpr int lampWidth = 24;
constexpr int largestLamp = 18;
constexpr int padding = 6;
constexpr qreal radius = 10;
constexpr qreal ringWidth = 3;
constexpr int markWidth = 3;
constexpr int shortestMark = 24;
// Nobody can read more than this beside a lamp; measuring 64 KiB of text would only cost time.
constexpr qsizetype longestShownName = 64;

// Of its width, in percent: no name is set tighter.
constexpr int tightest = 60;

QString shownPart(const QString &name) {
    return name.first(qMin(name.size(), longestShownName));
}

/// Whether letters of that size leave some room between rows of that height.
bool fitsRow(FontSizes::PixelSize size, int rowHeight) {
    return 5 * size <= 4 * rowHeight;
}

struct FittedName {
    QFont font;
    QString text;
};

/// The name set tighter until it fits, down to three fifths of its width; the rest is cut with an ellipsis.
FittedName fittedName(const QFont &font, const QString &name, int width) {
    const int needed = QFontMetrics(font).horizontalAdvance(name);
    if (needed <= qMax(0, width))
        return {font, name};
    QFont tight = font;
    // Hinting makes letters a little wider than their share. Few widths, for each of them takes memory.
    constexpr int step = 5;
    const int share = 100 * width / needed / step * step;
    for (int stretch = qMax(share, tightest); stretch >= tightest; stretch -= step) {
        tight.setStretch(stretch);
        // Widths are rounded, and eliding would cut a name that only just fits.
        if (QFontMetrics(tight).horizontalAdvance(name) <= width)
            return {tight, name};
    }
    return {tight, QFontMetrics(tight).elidedText(name, Qt::ElideRight, width)};
}

} // namespace

LedPanel::LedPanel(QWidget *parent, bool horizontal) : QWidget(parent), isHorizontal(horizontal) {
    setProperty("palette_id", u"Chrome"_s);
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void LedPanel::setRounded(bool rounded) {
    isRounded = rounded;
    update();
}

void LedPanel::setMargins(int left, int top, int right, int bottom) {
    ledMargins = QMargins(left, top, right, bottom);
    chooseLetters();
}

void LedPanel::clear(bool rebuild) {
    leds.clear();
    indexesByName.clear();
    if (rebuild)
        invokeRebuild();
}

void LedPanel::add(const QString &name, MeasQuality quality) {
    indexesByName.insert(name, leds.size());
    leds.append({name, quality});
}

void LedPanel::invokeRebuild() {
    scrollOffset = 0;
    chooseLetters();
}

void LedPanel::update(QList<QPair<QString, QString>> &data) {
    for (const auto &[name, state] : std::as_const(data)) {
        const MeasQuality quality = qualityFromState(state);
        const auto [first, last] = indexesByName.equal_range(name);
        for (auto index = first; index != last; ++index) {
            if (std::exchange(leds[*index].quality, quality) != quality)
                update(ledRect(*index));
        }
    }
}

QStringList LedPanel::names() const {
    QStringList names;
    for (const Led &led : leds)
        names.append(led.name);
    return names;
}

MeasQuality LedPanel::quality(const QString &name) const {
    const qsizetype index = indexesByName.value(name, -1);
    return index < 0 ? NotMeasured : leds[index].quality;
}

QSize LedPanel::sizeHint() const {
    return isHorizontal ? QSize(columnWidth * int(qMin<qsizetype>(leds.size(), 8)), tallestRow + 2 * padding)
                        : QSize(columnWidth - 4, tallestRow * 4);
}

QSize LedPanel::minimumSizeHint() const {
    return {lampWidth, tallestRow};
}

QRect LedPanel::ledArea() const {
    return rect().marginsRemoved(ledMargins).adjusted(0, padding, 0, -padding);
}

int LedPanel::rowHeight() const {
    if (isHorizontal || leds.isEmpty())
        return tallestRow;
    return qBound(lowestRow, ledArea().height() / int(leds.size()), tallestRow);
}

QRect LedPanel::nameRect(const QRect &ledRect) const {
    // The mark beside the names needs its room whether it is there or not, so that names keep their width.
    return ledRect.adjusted(lampWidth, 0, isHorizontal ? -2 : -markWidth, 0);
}

bool LedPanel::areNamesShownIn(FontSizes::PixelSize size) const {
    if (!fitsRow(size, rowHeight()))
        return false;
    const QFontMetrics metrics(FontSizes::sized(font(), size, QFont::Bold));
    const int width = 100 * nameRect(ledRect(0)).width() / (tightest + 5);
    return std::all_of(leds.cbegin(), leds.cend(), [&](const Led &led) {
        return metrics.horizontalAdvance(shownPart(led.name)) <= width;
    });
}

void LedPanel::chooseLetters() {
    letters = FontSizes::Small;
    for (const auto size : {FontSizes::Title, FontSizes::Large, FontSizes::Text}) {
        if (areNamesShownIn(size)) {
            letters = size;
            break;
        }
    }
    update();
}

QRect LedPanel::ledRect(qsizetype index) const {
    const QRect area = ledArea();
    if (isHorizontal)
        return {area.x() + int(index) * columnWidth - scrollOffset, area.y(), columnWidth, area.height()};
    return {area.x(), area.y() + int(index) * rowHeight() - scrollOffset, area.width(), rowHeight()};
}

int LedPanel::ledLength() const {
    return isHorizontal ? columnWidth : rowHeight();
}

int LedPanel::shownLength() const {
    return isHorizontal ? ledArea().width() : ledArea().height();
}

int LedPanel::farthestOffset() const {
    return qMax(0, int(leds.size()) * ledLength() - shownLength());
}

void LedPanel::scrollTo(int offset) {
    const int bounded = qBound(0, offset, farthestOffset());
    if (std::exchange(scrollOffset, bounded) != bounded)
        update();
}

QRect LedPanel::scrollMark() const {
    const int farthest = farthestOffset();
    const int shown = shownLength();
    if (farthest == 0 || shown <= shortestMark)
        return {};
    const int length = qMax(shortestMark, int(qint64(shown) * shown / (shown + farthest)));
    const int start = int(qint64(shown - length) * scrollOffset / farthest);
    const QRect area = ledArea();
    return isHorizontal ? QRect(area.x() + start, height() - markWidth - 1, length, markWidth)
                        : QRect(width() - markWidth - 1, area.y() + start, markWidth, length);
}

void LedPanel::paintEvent(QPaintEvent *event) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // Without lamps there is nothing that a key or a press could do.
    const bool hasRing = (hasFocus() || isHeld) && !leds.isEmpty();
    const qreal inset = hasRing ? ringWidth / 2 : 0;
    painter.setPen(hasRing ? QPen(palette().color(QPalette::Highlight), ringWidth) : QPen(Qt::NoPen));
    painter.setBrush(palette().base());
    const qreal corner = isRounded ? radius : 0;
    const QRectF field = QRectF(rect()).adjusted(0, 0, 0, -contentsMargins().bottom());
    painter.drawRoundedRect(field.adjusted(inset, inset, -inset, -inset), corner, corner);

    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::Midlight));
    painter.drawRoundedRect(scrollMark(), markWidth / 2.0, markWidth / 2.0);

    painter.setClipRect(ledArea());
    for (qsizetype index = scrollOffset / ledLength(); index < leds.size(); ++index) {
        const QRect rect = ledRect(index);
        if (isHorizontal ? rect.left() > event->rect().right() : rect.top() > event->rect().bottom())
            break;
        if (rect.intersects(event->rect()))
            drawLed(&painter, leds[index], rect);
    }
}

void LedPanel::drawLed(QPainter *painter, const Led &led, const QRect &rect) const {
    drawLamp(painter, QRect(rect.x(), rect.y(), lampWidth, rect.height()), led.quality,
             qMin<int>(letters - 2, largestLamp));
    const QRect textRect = nameRect(rect);
    const auto [font, text] = fittedName(FontSizes::sized(this->font(), letters, QFont::Bold),
                                         shownPart(led.name), textRect.width());
    painter->setFont(font);
    painter->setPen(palette().color(QPalette::Text));
    painter->drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
}

void LedPanel::resizeEvent(QResizeEvent *) {
    chooseLetters();
    scrollTo(scrollOffset);
}

void LedPanel::setHeld(bool held) {
    if (std::exchange(isHeld, held) != held)
        update();
}

void LedPanel::mousePressEvent(QMouseEvent *event) {
    pressPosition = event->pos();
    offsetAtPress = scrollOffset;
    isDragged = false;
    setHeld(true);
}

void LedPanel::mouseMoveEvent(QMouseEvent *event) {
    const QPoint moved = event->pos() - pressPosition;
    const int distance = isHorizontal ? moved.x() : moved.y();
    isDragged |= qAbs(distance) >= QApplication::startDragDistance();
    setHeld(!isDragged && rect().contains(event->pos()));
    if (isDragged)
        scrollTo(offsetAtPress - distance);
}

void LedPanel::mouseReleaseEvent(QMouseEvent *event) {
    setHeld(false);
    if (!isDragged && rect().contains(event->pos()))
        emit clicked();
}

void LedPanel::wheelEvent(QWheelEvent *event) {
    scrollTo(scrollOffset - event->angleDelta().y() / 4);
}

void LedPanel::keyPressEvent(QKeyEvent *event) {
    if (isPressKey(event->key()))
        emit clicked();
    else if (event->key() == (isHorizontal ? Qt::Key_Left : Qt::Key_Up))
        scrollTo(scrollOffset - ledLength());
    else if (event->key() == (isHorizontal ? Qt::Key_Right : Qt::Key_Down))
        scrollTo(scrollOffset + ledLength());
    else
        QWidget::keyPressEvent(event);
}
