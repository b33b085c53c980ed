// SPDX-License-Identifier: GPL-3.0-or-later
#include "dataheader.h"

#include "linesdelegate.h"

#include <fontsizes.h>

#include <QPainter>

namespace {

constexpr int headerHeight = 36;

} // namespace

DataHeader::DataHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent) {
    setFixedHeight(headerHeight);
    setFont(FontSizes::sized(font(), FontSizes::Small, QFont::Bold));
    setSectionsClickable(false);
}

void DataHeader::paintSection(QPainter *painter, const QRect &rect, int section) const {
    const int alignment = model()->headerData(section, Qt::Horizontal, Qt::TextAlignmentRole).toInt();
    const QString caption = model()->headerData(section, Qt::Horizontal).toString();
    const QRect text = rect.adjusted(LinesDelegate::padding, 0, -LinesDelegate::padding, -1);
    painter->fillRect(rect, palette().window());
    painter->fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), palette().mid());
    painter->setFont(font());
    painter->setPen(palette().color(QPalette::PlaceholderText));
    painter->drawText(text, alignment | Qt::AlignVCenter,
                      fontMetrics().elidedText(caption, Qt::ElideRight, text.width()));
}
