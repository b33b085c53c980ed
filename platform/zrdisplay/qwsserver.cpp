// SPDX-License-Identifier: GPL-3.0-or-later
#include "qwsserver.h"

#include "keyboardtap.h"

#include <QCursor>
#include <QGuiApplication>
#include <QList>

#include <algorithm>
#include <utility>

namespace {

QList<QWSServer::KeyboardFilter *> filters;

bool isConsumed(const PlatformKey &key) {
    // A filter may run an event loop, and filters may come and go in it.
    const QList<QWSServer::KeyboardFilter *> asked = filters;
    return std::any_of(asked.crbegin(), asked.crend(), [&key](QWSServer::KeyboardFilter *filter) {
        return filters.contains(filter) &&
               filter->filter(key.unicode, key.keycode, key.modifiers, key.isPress, key.isAutoRepeat);
    });
}

bool pointerIsHidden() {
    const QCursor *const cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::BlankCursor;
}

} // namespace

QWSServer::KeyboardFilter::~KeyboardFilter() = default;

void QWSServer::addKeyboardFilter(KeyboardFilter *filter) {
    // The tap stays for good: a filter may remove itself, or others, while it is being asked.
    static bool isTapped = false;
    if (!std::exchange(isTapped, true))
        tapKeyboard(isConsumed);
    filters.append(filter);
}

void QWSServer::removeKeyboardFilter() {
    if (!filters.isEmpty())
        filters.removeLast();
}

void QWSServer::setCursorVisible(bool visible) {
    if (visible != pointerIsHidden())
        return;
    if (visible)
        QGuiApplication::restoreOverrideCursor();
    else
        QGuiApplication::setOverrideCursor(Qt::BlankCursor);
}
