// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

/// Where a pop-up of `size` is put that belongs to `caller`: to its right, else to its left, its foot level
/// with the caller's, and always inside `bounds` as far as it fits there. All in screen coordinates.
QRect placeBeside(const QRect &caller, const QSize &size, const QRect &bounds);
