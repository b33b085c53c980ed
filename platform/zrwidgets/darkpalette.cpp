// SPDX-License-Identifier: GPL-3.0-or-later
#include "darkpalette.h"

#include <QPalette>

bool isDark(const QPalette &palette) {
    return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}
