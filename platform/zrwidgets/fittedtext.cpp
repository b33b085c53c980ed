// SPDX-License-Identifier: GPL-3.0-or-later
#include "fittedtext.h"

#include <QFontMetrics>

namespace {

// Nobody can read more than this on a button; breaking 64 KiB of text would only cost time.
constexpr qsizetype longestShown = 256;
constexpr int tightest = 70;
constexpr int tightenStep = 5;

QStringList brokenLine(const QString &line, const QFontMetrics &metrics, int width) {
    QStringList lines{QString()};
    for (const QString &word : line.split(u' ', Qt::SkipEmptyParts)) {
        const QString longer = lines.last().isEmpty() ? word : lines.last() + u' ' + word;
        if (lines.last().isEmpty() || metrics.horizontalAdvance(longer) <= width)
            lines.last() = longer;
        else
            lines.append(word);
    }
    return lines;
}

QStringList brokenText(const QString &text, const QFontMetrics &metrics, int width) {
    QStringList lines;
    for (const QString &line : text.split(u'\n'))
        lines += brokenLine(line, metrics, width);
    return lines;
}

bool fits(const QStringList &lines, const QFontMetrics &metrics, const QSize &room) {
    if (lines.size() > 1 && lines.size() * metrics.height() > room.height())
        return false;
    for (const QString &line : lines) {
        if (metrics.horizontalAdvance(line) > room.width())
            return false;
    }
    return true;
}

QStringList cut(const QStringList &lines, const QFontMetrics &metrics, const QSize &room) {
    const int mostLines = qMax(1, room.height() / qMax(1, metrics.height()));
    const qsizetype count = qMin(qsizetype(mostLines), lines.size());
    QStringList shown = lines.first(count);
    if (count < lines.size())
        shown.last() = lines.sliced(count - 1).join(u' ');
    for (QString &line : shown)
        line = metrics.elidedText(line, Qt::ElideRight, room.width());
    return shown;
}

/// Fonts to try, from the largest to the tightest.
QList<QFont> candidates(const QFont &font, FontSizes::PixelSize largest) {
    QList<QFont> fonts;
    for (const auto size : {FontSizes::Title, FontSizes::Large, FontSizes::Text, FontSizes::Small}) {
        if (size <= largest)
            fonts.append(FontSizes::sized(font, size, QFont::Bold));
    }
    QFont tight = fonts.last();
    for (int stretch = 100 - tightenStep; stretch >= tightest; stretch -= tightenStep) {
        tight.setStretch(stretch);
        fonts.append(tight);
    }
    return fonts;
}

} // namespace

FittedText FittedText::in(const QSize &room, const QString &text, const QFont &font,
                          FontSizes::PixelSize largest) {
    const QString shown = text.first(qMin(text.size(), longestShown));
    FittedText fitted;
    for (const QFont &candidate : candidates(font, largest)) {
        const QFontMetrics metrics(candidate);
        fitted = {candidate, brokenText(shown, metrics, room.width())};
        if (fits(fitted.lines, metrics, room))
            return fitted;
    }
    fitted.lines = cut(fitted.lines, QFontMetrics(fitted.font), room);
    return fitted;
}

void FittedText::draw(QPainter *painter, const QRect &rect, Qt::Alignment alignment) const {
    painter->setFont(font);
    painter->drawText(rect, int(alignment), lines.join(u'\n'));
}
