// SPDX-License-Identifier: GPL-3.0-or-later
#include "checkbutton.h"

#include "fittedtext.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <QtMath>

namespace {

constexpr int buttonHeight = 52;
constexpr int usualWidth = 112;
constexpr int smallestWidth = 52;
constexpr int widestMinimum = 104;
// Words may be set that much tighter where room is short.
constexpr qreal tightening = 0.75;
constexpr int padding = 16;
constexpr int tightPadding = 6;
// Longer texts are not worth measuring.
constexpr int mostLetters = 64;
constexpr int verticalPadding = 4;

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
    const QString words = text().simplified().replace(u' ', u'\n');
    const qreal widestWord = words.size() > mostLetters ? widestMinimum : smallestWordWidth(words);
    return {qBound(smallestWidth, qCeil(tightening * widestWord) + 2 * tightPadding, widestMinimum),
            buttonHeight};
}

qreal CheckButton::smallestWordWidth(const QString &words) const {
    // Not measured in small letters: these would be loaded for that alone, although most buttons never show them.
    const QFont shown = textFont();
    return qreal(QFontMetrics(shown).size(0, words).width() * FontSizes::Small) / shown.pixelSize();
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
    const QRect textRect = rect().adjusted(tightPadding, verticalPadding, -tightPadding, -verticalPadding);
    const auto largest = text().contains(u'\n') ? FontSizes::Small : FontSizes::Text;
    FittedText::in(textRect.size(), text(), font(), largest).draw(&painter, textRect, Qt::AlignCenter);
}
