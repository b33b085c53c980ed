// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Letter sizes of plain controls; a widget with a font of its own keeps it.
namespace ControlFonts {

/// Makes them the application's fonts for the controls' classes.
void apply();

} // namespace ControlFonts
