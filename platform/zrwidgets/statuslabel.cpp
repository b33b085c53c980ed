// SPDX-License-Identifier: GPL-3.0-or-later
#include "statuslabel.h"

#include "fontsizes.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr int rowHeight = 38;
constexpr int sidePadding = 8;
constexpr int columnGap = 16;
constexpr int mostColumns = 16;
constexpr int mostRows = 64;

template <typename Row>
bool isEmptyRow(const Row &row) {
    return std::all_of(row.cbegin(), row.cend(), [](const auto &cell) { return cell.text.isEmpty(); });
}

} // namespace

StatusLabel::StatusLabel(QWidget *parent) : QWidget(parent) {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StatusLabel::setCell(int column, int row, Qt::Alignment alignment, const QString &text,
                          const QColor &color, int minimumWidth, bool isSoft) {
    if (column < 0 || column >= mostColumns || row < 0 || row >= mostRows)
        return;
    const Cell cell{alignment, text, color, minimumWidth, isSoft};
    if (std::exchange(rows[row][column], cell) == cell)
        return;
    updateGeometry();
    update();
}

QFont StatusLabel::fontOf(const Cell &cell) const {
    return FontSizes::sized(font(), FontSizes::Text, cell.isSoft ? QFont::Normal : QFont::Bold);
}

int StatusLabel::widthOf(const Cell &cell) const {
    return qMax(cell.minimumWidth, QFontMetrics(fontOf(cell)).horizontalAdvance(cell.text));
}

int StatusLabel::widthOf(const Row &row) const {
    int width = 2 * sidePadding;
    for (const Cell &cell : row)
        width += cell.text.isEmpty() ? 0 : widthOf(cell) + columnGap;
    return width;
}

QSize StatusLabel::sizeHint() const {
    int width = 0;
    for (const Row &row : rows)
        width = qMax(width, widthOf(row));
    return {width, heightNeeded()};
}

QSize StatusLabel::minimumSizeHint() const {
    return {2 * sidePadding, heightNeeded()};
}

int StatusLabel::heightNeeded() const {
    return rowHeight *
           int(std::count_if(rows.cbegin(), rows.cend(), [](const Row &row) { return !isEmptyRow(row); }));
}

void StatusLabel::paintEvent(QPaintEvent *) {
    QPainter painter(this);
    QRect rowRect(0, 0, width(), rowHeight);
    for (const Row &row : rows) {
        if (isEmptyRow(row))
            continue;
        drawRow(painter, row, rowRect.adjusted(sidePadding, 0, -sidePadding, 0));
        painter.fillRect(QRect(0, rowRect.bottom(), width(), 1), palette().mid());
        rowRect.translate(0, rowHeight);
    }
}

void StatusLabel::drawRow(QPainter &painter, const Row &row, const QRect &rect) const {
    // Texts at the left take what they need; those at the right end share what is left.
    QRect free = rect;
    for (const Cell &cell : row) {
        painter.setFont(fontOf(cell));
        painter.setPen(cell.color);
        const QString shown =
            painter.fontMetrics().elidedText(cell.text, Qt::ElideRight, qMax(0, free.width()));
        painter.drawText(free, int(cell.alignment | Qt::AlignVCenter), shown);
        if (cell.alignment & Qt::AlignRight)
            free.setRight(free.right() - widthOf(cell) - columnGap);
        else if (!cell.text.isEmpty())
            free.setLeft(free.left() + widthOf(cell) + columnGap);
    }
}
