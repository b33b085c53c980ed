// SPDX-License-Identifier: GPL-3.0-or-later
#include "groupboxstyle.h"

#include "checkstyle.h"
#include "shapes.h"

#include <QPainter>
#include <QStyleOptionGroupBox>

namespace {

constexpr int plainTitleHeight = 36;
constexpr int edgeWidth = 1;

bool isCheckable(const QStyleOptionGroupBox &option) {
    return option.subControls & QStyle::SC_GroupBoxCheckBox;
}

QStyleOption titleOf(const QStyleOptionGroupBox &option) {
    QStyleOption title = option;
    const int plainHeight = option.text.isEmpty() ? 0 : plainTitleHeight;
    title.rect.setHeight(isCheckable(option) ? Shapes::touchHeight : plainHeight);
    return title;
}

} // namespace

QRect GroupBoxStyle::partRect(const QStyleOptionGroupBox &option, QStyle::SubControl part) {
    const QStyleOption title = titleOf(option);
    switch (part) {
    case QStyle::SC_GroupBoxCheckBox:
        return CheckStyle::markRect(title);
    case QStyle::SC_GroupBoxLabel:
        return isCheckable(option) ? CheckStyle::textRect(title)
                                   : title.rect.adjusted(Shapes::padding, 0, -Shapes::padding, 0);
    case QStyle::SC_GroupBoxContents:
        return option.rect.adjusted(edgeWidth, qMax(title.rect.height(), edgeWidth), -edgeWidth, -edgeWidth);
    default:
        return option.rect;
    }
}

void GroupBoxStyle::draw(const QStyleOptionGroupBox &option, QPainter *painter) {
    if (!(option.features & QStyleOptionFrame::Flat))
        Shapes::drawRounded(painter, option.rect, Qt::NoBrush,
                            QPen(option.palette.color(QPalette::Midlight), edgeWidth));
    if (isCheckable(option)) {
        QStyleOption mark = option;
        mark.rect = partRect(option, QStyle::SC_GroupBoxCheckBox);
        CheckStyle::drawBox(mark, painter);
    }
    painter->save();
    painter->setPen(option.palette.color(QPalette::WindowText));
    painter->drawText(partRect(option, QStyle::SC_GroupBoxLabel),
                      Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextHideMnemonic |
                          QStyle::visualAlignment(option.direction, Qt::AlignLeft),
                      option.text);
    painter->restore();
    if (Shapes::hasFocus(option))
        Shapes::drawFocusRing(painter, titleOf(option).rect, option.palette.color(QPalette::Highlight));
}

QSize GroupBoxStyle::size(const QSize &contents) {
    return {contents.width() + 2 * Shapes::padding + CheckStyle::gap,
            qMax(contents.height(), Shapes::touchHeight)};
}
