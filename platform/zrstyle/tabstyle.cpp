// SPDX-License-Identifier: GPL-3.0-or-later
#include "tabstyle.h"

#include "shapes.h"

#include <QStyleOptionTab>

namespace {

/// The ring of the focus is drawn in it.
constexpr int margin = 4;

bool isChosen(const QStyleOption &option) {
    return Shapes::isEnabled(option) && option.state & (QStyle::State_Selected | QStyle::State_Sunken);
}

} // namespace

void TabStyle::drawTab(const QStyleOptionTab &option, QPainter *painter) {
    const QRectF body = QRectF(option.rect).adjusted(margin, margin, -margin, -margin);
    const QPalette &palette = option.palette;
    if (!Shapes::isEnabled(option)) {
        const bool isCurrent = option.state & QStyle::State_Selected;
        Shapes::drawRounded(painter, body, palette.brush(QPalette::Disabled, QPalette::Button),
                            isCurrent ? QPen(palette.color(QPalette::PlaceholderText), Shapes::focusRingWidth)
                                      : QPen(Qt::NoPen));
        return;
    }
    Shapes::drawRounded(painter, body, isChosen(option) ? palette.highlight() : palette.base(),
                        QPen(palette.color(isChosen(option) ? QPalette::Highlight : QPalette::Midlight), 1));
    if (Shapes::hasFocus(option))
        Shapes::drawRounded(painter, option.rect, Qt::NoBrush,
                            QPen(palette.color(QPalette::Highlight), Shapes::focusRingWidth),
                            Shapes::radius + margin);
}

QStyleOptionTab TabStyle::labelOption(const QStyleOptionTab &option) {
    QStyleOptionTab label = option;
    const auto role = isChosen(option) ? QPalette::HighlightedText : QPalette::Text;
    label.palette.setColor(QPalette::WindowText, option.palette.color(role));
    // The tab has its ring already.
    label.state &= ~QStyle::State_HasFocus;
    return label;
}

void TabStyle::drawPane(const QStyleOption &option, QPainter *painter) {
    Shapes::drawRounded(painter, option.rect, Qt::NoBrush, QPen(option.palette.color(QPalette::Midlight), 1));
}

QSize TabStyle::size(const QSize &contents) {
    const int height = Shapes::touchHeight + 2 * margin;
    return {qMax(contents.width(), height), qMax(contents.height(), height)};
}
