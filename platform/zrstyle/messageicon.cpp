// SPDX-License-Identifier: GPL-3.0-or-later
#include "messageicon.h"

#include <palettefactory.h>

#include <QFont>
#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int letterPixels = 30;

struct Sign {
    QPainterPath shape;
    QColor ground;
    QColor ink;
    QString letter;
};

QPainterPath disc() {
    QPainterPath path;
    path.addEllipse(QRectF(2, 2, 44, 44));
    return path;
}

QPainterPath triangle() {
    QPainterPath path;
    path.addPolygon(QPolygonF{QPointF(24, 4), QPointF(46, 44), QPointF(2, 44), QPointF(24, 4)});
    return path;
}

QPainterPath square() {
    QPainterPath path;
    path.addRoundedRect(QRectF(4, 4, 40, 40), 6, 6);
    return path;
}

Sign signOf(QStyle::StandardPixmap sign, const QPalette &palette) {
    const QPalette quality = PaletteFactory::getPalette(u"quality"_s);
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor onAccent = palette.color(QPalette::HighlightedText);
    switch (sign) {
    case QStyle::SP_MessageBoxInformation:
        return {disc(), accent, onAccent, u"i"_s};
    case QStyle::SP_MessageBoxQuestion:
        return {disc(), accent, onAccent, u"?"_s};
    case QStyle::SP_MessageBoxWarning:
        return {triangle(), quality.color(QPalette::Inactive, QPalette::Window), Qt::black, u"!"_s};
    case QStyle::SP_MessageBoxCritical:
        return {square(), quality.color(QPalette::Disabled, QPalette::Window), Qt::white, u"!"_s};
    default:
        return {};
    }
}

} // namespace

QIcon MessageIcon::icon(QStyle::StandardPixmap which, const QPalette &palette) {
    const Sign sign = signOf(which, palette);
    if (sign.letter.isEmpty())
        return {};
    QPixmap pixmap(size, size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(sign.shape, sign.ground);
    QFont font = QGuiApplication::font();
    font.setPixelSize(letterPixels);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(sign.ink);
    const int sunk = which == QStyle::SP_MessageBoxWarning ? 4 : 0;
    painter.drawText(QRect(0, sunk, size, size), Qt::AlignCenter, sign.letter);
    painter.end();
    return QIcon(pixmap);
}
