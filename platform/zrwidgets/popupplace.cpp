// SPDX-License-Identifier: GPL-3.0-or-later
#include "popupplace.h"

namespace {

constexpr int gap = 8;

} // namespace

QRect placeBeside(const QRect &caller, const QSize &size, const QRect &bounds) {
    QRect place(QPoint(), size.boundedTo(bounds.size()));
    place.moveLeft(caller.right() + 1 + gap);
    if (place.right() > bounds.right())
        place.moveRight(caller.left() - 1 - gap);
    place.moveLeft(qBound(bounds.left(), place.left(), bounds.right() + 1 - place.width()));
    place.moveBottom(caller.bottom());
    place.moveTop(qBound(bounds.top(), place.top(), bounds.bottom() + 1 - place.height()));
    return place;
}
