// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Makes known what was installed beside this program, wherever the installed tree stands now:
///
/// - the search path "shipped:" names the directory of the shipped plug-ins, so that the shipped configuration
///   needs no absolute path;
/// - the system-wide configuration in the tree's own etc/xdg is found after the system's, unless the
///   environment names the directories itself (`XDG_CONFIG_DIRS`, the desktop base directories).
///
/// To be called once the application object knows where the program lies, before the configuration is read.
void registerInstallation();
