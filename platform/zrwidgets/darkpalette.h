// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QPalette;

/// Whether what is shown in it is light on a dark ground: the colours for the night.
bool isDark(const QPalette &palette);
