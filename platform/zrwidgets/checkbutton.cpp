// SPDX-License-Identifier: GPL-3.0-or-later
#include "checkbutton.h"

#include "fontsizes.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr int buttonHeight = 52;
constexpr int usualWidth = 112;
constexpr int smallestWidth = 52;
constexpr int padding = 16;
constexpr int tightPadding = 6;

} // namespace

CheckButton::CheckButton(QWidget *parent) : CheckButton(QString(), parent) {}

CheckButton::CheckButton(const QString &text, QWidget *parent) : QPushButton(text, parent) {
    setCheckable(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QFont CheckButton::textFont() const {
    const bool hasLines = text().contains(u'\n');
    return FontSizes::sized(font(), hasLines ? FontSizes::Small : FontSizes::Text, QFont::Bold);
}

QSize CheckButton::sizeHint() const {
    const int textWidth = QFontMetrics(textFont()).size(0, text()).width();
    return {qMax(usualWidth, textWidth + 2 * padding), buttonHeight};
}

QSize CheckButton::minimumSizeHint() const {
    return {smallestWidth, buttonHeight};
}

void CheckButton::paintEvent(QPaintEvent *) {
    QStyleOptionButton option;
    initStyleOption(&option);
    if (isEnabled())
        option.palette.setBrush(QPalette::Button, option.palette.base());
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const bool isLit = isEnabled() && option.state & (QStyle::State_On | QStyle::State_Sunken);
    painter.setPen(option.palette.color(isLit ? QPalette::HighlightedText : QPalette::Text));
    painter.setFont(textFont());
    const QRect textRect = rect().adjusted(tightPadding, 0, -tightPadding, 0);
    QStringList lines = text().split(u'\n');
    for (QString &line : lines)
        line = painter.fontMetrics().elidedText(line, Qt::ElideRight, textRect.width());
    painter.drawText(textRect, Qt::AlignCenter, lines.join(u'\n'));
}
