// SPDX-License-Identifier: GPL-3.0-or-later
#include "tilebody.h"

#include <QPainter>

#include <algorithm>

namespace {

constexpr qreal radius = 10;
// Tiles as they are and lit ones, with room for another size; 100 kB each on a full page.
constexpr qsizetype mostKept = 4;

struct KeptPicture {
    TileBody body;
    QImage picture;
};

} // namespace

QImage TileBody::picture() const {
    static QList<KeptPicture> kept;
    const auto known = std::find_if(kept.cbegin(), kept.cend(),
                                    [this](const KeptPicture &candidate) { return candidate.body == *this; });
    if (known != kept.cend())
        return known->picture;
    if (kept.size() == mostKept)
        kept.removeFirst();
    kept.append({*this, drawn()});
    return kept.last().picture;
}

QImage TileBody::drawn() const {
    QImage picture((QSizeF(size) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(QPointF(), size).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    return picture;
}
