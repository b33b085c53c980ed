// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Product line and version.
extern const char *const build_name;

/// Who built this program, when, and from which revision. A trailing "m" marks a modified working tree; the
/// revision is 0 where the sources came without their history.
extern const char *const build_info;

/// The licence notice: five lines, each with its line end.
extern const char *const build_copyright;
