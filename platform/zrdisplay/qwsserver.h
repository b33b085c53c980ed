// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The display server's side of the instrument's one screen and its keys, whatever platform plug-in drives them.
class QWSServer {
public:
    QWSServer() = delete;

    /// Sees keys before anything else in the application does.
    class KeyboardFilter {
    public:
        virtual ~KeyboardFilter();

        /// Called in the GUI thread for every press, release and auto-repeat, once, before any window, shortcut, pop-up or
        /// modal dialog, also when nothing has the focus. `unicode` is the first character of the key's text or 0, `keycode` a
        /// Qt::Key, `modifiers` Qt::KeyboardModifiers. True keeps the event from everybody else. May run an event loop.
        virtual bool filter(int unicode, int keycode, int modifiers, bool isPress, bool autoRepeat) = 0;
    };

    /// The caller keeps the filter and removes it before deleting it. The one added last is asked first. Needs the application
    /// object. GUI thread only.
    static void addKeyboardFilter(KeyboardFilter *filter);
    /// Removes the filter that was added last.
    static void removeKeyboardFilter();

    /// Shows the pointer, or hides it everywhere in this application. On a framebuffer the platform draws the
    /// pointer itself once a pointing device is there, and leaves it out while the override cursor is blank.
    /// Needs the application object. Saying the same twice changes nothing. GUI thread only.
    static void setCursorVisible(bool visible);
};
