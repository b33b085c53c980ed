// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The display server's side of the instrument's one screen, whatever platform plug-in drives it.
class QWSServer {
public:
    QWSServer() = delete;

    /// Shows the pointer, or hides it everywhere in this application. On a framebuffer the platform draws the
    /// pointer itself once a pointing device is there, and leaves it out while the override cursor is blank.
    /// Needs the application object. Saying the same twice changes nothing. GUI thread only.
    static void setCursorVisible(bool visible);
};
