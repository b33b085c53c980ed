// SPDX-License-Identifier: GPL-3.0-or-later
#include "linesdelegate.h"

#include <fontsizes.h>
#include <lamp.h>

#include <QPainter>

namespace {

constexpr int smallestHeight = 52;
constexpr int verticalPadding = 8;
constexpr int strongHeight = 24;
constexpr int smallHeight = 20;
constexpr int lampSize = 12;
constexpr int lampWidth = 20;

struct Lines {
    explicit Lines(const QModelIndex &index)
        : strong(index.data(LinesDelegate::StrongLine).toString()),
          small(index.data(LinesDelegate::SmallLines).toStringList()),
          lamp(index.data(LinesDelegate::FirstLamp)) {}

    int height() const {
        return (strong.isEmpty() ? 0 : strongHeight) + smallHeight * static_cast<int>(small.size());
    }

    QString strong;
    QStringList small;
    QVariant lamp;
};

Qt::Alignment alignmentOf(const QModelIndex &index) {
    const QVariant alignment = index.data(Qt::TextAlignmentRole);
    return alignment.isValid() ? Qt::Alignment(alignment.toInt()) : Qt::AlignLeft;
}

/// Draws one line at the top of `rest` and takes its height off.
void drawLine(QPainter *painter, QRect &rest, int height, int indent, Qt::Alignment alignment,
              const QString &text) {
    const QRect line(rest.x() + indent, rest.y(), rest.width() - indent, height);
    const QString shown = painter->fontMetrics().elidedText(text, Qt::ElideMiddle, line.width());
    painter->drawText(line, static_cast<int>(alignment) | Qt::AlignVCenter | Qt::TextSingleLine, shown);
    rest.setTop(rest.top() + height);
}

} // namespace

void LinesDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const {
    const bool isChosen = option.state & QStyle::State_Selected;
    const QPalette &colors = option.palette;
    if (isChosen)
        painter->fillRect(option.rect, colors.highlight());
    painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1), colors.mid());

    const Lines lines(index);
    const Qt::Alignment alignment = alignmentOf(index);
    QRect rest = option.rect.adjusted(padding, 0, -padding, -1);
    rest.setTop(rest.top() + (rest.height() - lines.height()) / 2);

    if (!lines.strong.isEmpty()) {
        painter->setFont(FontSizes::sized(option.font, FontSizes::Text, QFont::Bold));
        painter->setPen(colors.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
        drawLine(painter, rest, strongHeight, 0, alignment, lines.strong);
    }
    painter->setFont(FontSizes::sized(option.font, FontSizes::Small, QFont::Normal));
    painter->setPen(colors.color(isChosen ? QPalette::HighlightedText : QPalette::PlaceholderText));
    int indent = 0;
    if (lines.lamp.isValid()) {
        drawLamp(painter, QRectF(rest.x(), rest.y(), lampSize, smallHeight),
                 static_cast<MeasQuality>(lines.lamp.toInt()));
        indent = lampWidth;
    }
    for (const QString &line : lines.small) {
        drawLine(painter, rest, smallHeight, indent, alignment, line);
        indent = 0;
    }
}

QSize LinesDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &index) const {
    // Columns are given their widths; only the height is ever asked for.
    return {0, qMax(smallestHeight, Lines(index).height() + 2 * verticalPadding)};
}
