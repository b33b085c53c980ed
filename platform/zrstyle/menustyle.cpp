// SPDX-License-Identifier: GPL-3.0-or-later
#include "menustyle.h"

#include "checkstyle.h"
#include "shapes.h"

#include <QPainter>
#include <QStyleOptionMenuItem>

namespace {

constexpr int separatorHeight = 9;
constexpr int arrowWidth = 32;
constexpr qreal edgeWidth = 2;
constexpr qreal itemRadius = 6;
constexpr int iconSize = 28;

QRect placed(const QStyleOption &option, const QRect &rect) {
    return QStyle::visualRect(option.direction, option.rect, rect);
}

bool hasMark(const QStyleOptionMenuItem &option) {
    return option.menuHasCheckableItems || option.maxIconWidth > 0;
}

int textStart(const QStyleOptionMenuItem &option) {
    return Shapes::padding + (hasMark(option) ? CheckStyle::markSize + CheckStyle::gap : 0);
}

void drawMark(const QStyleOptionMenuItem &option, QPainter *painter) {
    QRect rect(option.rect.left() + Shapes::padding, option.rect.top(), CheckStyle::markSize,
               CheckStyle::markSize);
    rect.moveTop(option.rect.top() + (option.rect.height() - rect.height()) / 2);
    if (option.checkType == QStyleOptionMenuItem::NotCheckable) {
        option.icon.paint(painter, placed(option, rect).adjusted(0, 0, iconSize - rect.width(), 0),
                          Qt::AlignCenter, Shapes::isEnabled(option) ? QIcon::Normal : QIcon::Disabled);
        return;
    }
    QStyleOption mark = option;
    mark.rect = placed(option, rect);
    mark.state &= ~(QStyle::State_Sunken | QStyle::State_On);
    if (option.checked)
        mark.state |= QStyle::State_On;
    if (option.checkType == QStyleOptionMenuItem::Exclusive)
        CheckStyle::drawCircle(mark, painter);
    else
        CheckStyle::drawBox(mark, painter);
}

} // namespace

void MenuStyle::drawPanel(const QStyleOption &option, QPainter *painter) {
    Shapes::drawRounded(painter, option.rect, option.palette.base(),
                        QPen(option.palette.color(QPalette::PlaceholderText), edgeWidth));
}

void MenuStyle::drawItem(const QStyleOptionMenuItem &option, QPainter *painter) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator) {
        painter->fillRect(QRect(option.rect.left(), option.rect.center().y(), option.rect.width(), 1),
                          option.palette.midlight());
        return;
    }
    const bool isChosen = Shapes::isEnabled(option) && option.state & QStyle::State_Selected;
    if (isChosen)
        Shapes::drawRounded(painter, option.rect, option.palette.highlight(), Qt::NoPen, itemRadius);
    if (hasMark(option))
        drawMark(option, painter);
    const QColor ink = option.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text);
    const QRect text = option.rect.adjusted(textStart(option), 0, -Shapes::padding, 0);
    painter->save();
    painter->setFont(option.font);
    painter->setPen(ink);
    constexpr int flags = Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic;
    painter->drawText(placed(option, text), flags | QStyle::visualAlignment(option.direction, Qt::AlignLeft),
                      option.text.section(u'\t', 0, 0));
    painter->drawText(placed(option, text), flags | QStyle::visualAlignment(option.direction, Qt::AlignRight),
                      option.text.section(u'\t', 1));
    painter->restore();
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const QRect arrow(option.rect.right() - arrowWidth, option.rect.top(), arrowWidth,
                          option.rect.height());
        Shapes::drawChevron(painter, placed(option, arrow),
                            option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow, ink);
    }
}

void MenuStyle::drawScroller(const QStyleOption &option, QPainter *painter) {
    Shapes::drawChevron(painter, option.rect,
                        option.state & QStyle::State_DownArrow ? Qt::DownArrow : Qt::UpArrow,
                        option.palette.color(QPalette::Text));
}

QSize MenuStyle::itemSize(const QStyleOptionMenuItem &option, const QSize &contents) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator)
        return {contents.width(), separatorHeight};
    const int trailing = option.menuItemType == QStyleOptionMenuItem::SubMenu ? arrowWidth : 0;
    return {contents.width() + textStart(option) + Shapes::padding + trailing,
            qMax(contents.height(), Shapes::touchHeight)};
}
