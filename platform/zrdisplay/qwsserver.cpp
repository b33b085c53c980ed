// SPDX-License-Identifier: GPL-3.0-or-later
#include "qwsserver.h"

#include <QCursor>
#include <QGuiApplication>

namespace {

bool pointerIsHidden() {
    const QCursor *const cursor = QGuiApplication::overrideCursor();
    return cursor && cursor->shape() == Qt::BlankCursor;
}

} // namespace

void QWSServer::setCursorVisible(bool visible) {
    if (visible != pointerIsHidden())
        return;
    if (visible)
        QGuiApplication::restoreOverrideCursor();
    else
        QGuiApplication::setOverrideCursor(Qt::BlankCursor);
}
