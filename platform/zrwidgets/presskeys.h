// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

/// Whether a key does what a press of the thumb does.
constexpr bool isPressKey(int key) {
    return key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Select;
}
