// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Height in pixels of the framebuffer's visible area, 600 when it cannot be read.
int fbHeight();
