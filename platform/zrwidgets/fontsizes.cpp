// SPDX-License-Identifier: GPL-3.0-or-later
#include "fontsizes.h"

QFont FontSizes::sized(const QFont &font, PixelSize size, QFont::Weight weight) {
    QFont changed = font;
    changed.setPixelSize(size);
    changed.setWeight(weight);
    return changed;
}
