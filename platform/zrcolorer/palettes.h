// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

// One function a palette, each in the file named after it.
QPalette genericWindowPalette();
QPalette batteryPalette();
QPalette chromePalette();
QPalette timeButtonPalette();
QPalette qualityPalette();
