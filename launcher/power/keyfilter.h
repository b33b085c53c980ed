// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <qwsserver.h>

class LauncherWindow;

/// Gives the instrument's own keys their meaning everywhere: power off (Pause), Home, brightness (F3) and information (F4). F1 and
/// F2 are kept from the windows when they are pressed, and let through when they are let go. GUI thread only.
class KeyFilter : public QWSServer::KeyboardFilter {
public:
    /// The window stays the caller's and has to live as long as the filter.
    explicit KeyFilter(LauncherWindow *window);

    bool filter(int unicode, int keycode, int modifiers, bool isPress, bool autoRepeat) override;

private:
    void press(int keycode);
    void release(int keycode);
    void Brightness();
    void Suspend();

    bool powerDialogIsOpen = false;
    bool isHighNext = true;
    bool brightnessIsHeld = false;
    bool infoIsHeld = false;
    LauncherWindow *launcher;
};
