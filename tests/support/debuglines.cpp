// SPDX-License-Identifier: GPL-3.0-or-later
#include "debuglines.h"

namespace {

QStringList caughtLines;
QtMessageHandler usualHandler = nullptr;

void catchDebugLine(QtMsgType type, const QMessageLogContext &context, const QString &text) {
    if (type == QtDebugMsg)
        caughtLines.append(text);
    else
        usualHandler(type, context, text);
}

} // namespace

DebugLines::DebugLines() {
    caughtLines.clear();
    usualHandler = qInstallMessageHandler(catchDebugLine);
}

DebugLines::~DebugLines() {
    qInstallMessageHandler(usualHandler);
}

QStringList DebugLines::lines() const {
    return caughtLines;
}
