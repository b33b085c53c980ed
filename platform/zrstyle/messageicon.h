// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QPalette>
#include <QStyle>

/// The signs of message windows. Their shape tells the kind, too: disc, triangle, square.
namespace MessageIcon {

constexpr int size = 48;

/// A null icon for a picture that is no sign of a message window.
QIcon icon(QStyle::StandardPixmap sign, const QPalette &palette);

} // namespace MessageIcon
