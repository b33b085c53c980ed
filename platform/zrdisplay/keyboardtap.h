// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

/// One key event as the platform delivers it.
struct PlatformKey {
    int unicode;
    int keycode;
    int modifiers;
    bool isPress;
    bool isAutoRepeat;
};

/// Shows every key event to `isConsumed` before Qt looks at it, for as long as the process runs; true ends the event there.
/// To be called once. GUI thread only.
void tapKeyboard(const std::function<bool(const PlatformKey &)> &isConsumed);
