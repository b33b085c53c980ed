// SPDX-License-Identifier: GPL-3.0-or-later
#include "itemstyle.h"

#include "shapes.h"

#include <QPainter>
#include <QStyleOptionHeader>

namespace {

constexpr qreal ringRadius = 6;

} // namespace

void ItemStyle::drawHeaderSection(const QStyleOption &option, const QBrush &ground, QPainter *painter) {
    painter->fillRect(option.rect, ground);
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                      option.palette.mid());
}

QStyleOptionHeader ItemStyle::headerLabelOption(const QStyleOptionHeader &option) {
    QStyleOptionHeader label = option;
    label.palette.setBrush(QPalette::ButtonText, label.palette.placeholderText());
    return label;
}

void ItemStyle::drawSortMark(const QStyleOptionHeader &option, QPainter *painter) {
    if (option.sortIndicator != QStyleOptionHeader::None)
        Shapes::drawChevron(painter, option.rect,
                            option.sortIndicator == QStyleOptionHeader::SortUp ? Qt::UpArrow : Qt::DownArrow,
                            option.palette.color(QPalette::PlaceholderText));
}

QStyleOptionViewItem ItemStyle::rowOption(const QStyleOptionViewItem &option) {
    QStyleOptionViewItem row = option;
    if (!Shapes::isEnabled(option)) {
        row.palette.setBrush(QPalette::Highlight, option.palette.mid());
        row.palette.setBrush(QPalette::HighlightedText, option.palette.placeholderText());
    }
    return row;
}

void ItemStyle::drawBranch(const QStyleOption &option, QPainter *painter) {
    if (!(option.state & QStyle::State_Children))
        return;
    const auto closed = option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
    const bool isChosen = option.state & QStyle::State_Selected;
    Shapes::drawChevron(painter, option.rect, option.state & QStyle::State_Open ? Qt::DownArrow : closed,
                        option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
}

void ItemStyle::drawFocusRing(const QStyleOption &option, QPainter *painter) {
    const bool isChosen = option.state & QStyle::State_Selected;
    Shapes::drawRounded(painter, QRectF(option.rect).adjusted(1, 1, -1, -1), Qt::NoBrush,
                        QPen(option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Highlight),
                             Shapes::focusRingWidth),
                        ringRadius);
}

QSize ItemStyle::rowSize(const QSize &contents) {
    return {contents.width(), qMax(contents.height(), Shapes::touchHeight)};
}
