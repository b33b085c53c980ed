// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>

/// The four letter sizes of the instrument's screens, in pixels.
namespace FontSizes {

enum PixelSize { Small = 14, Text = 18, Large = 20, Title = 22 };

QFont sized(const QFont &font, PixelSize size, QFont::Weight weight);

} // namespace FontSizes
