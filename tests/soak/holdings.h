// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QObject;

/// What a program holds that must not become more.
struct Holdings {
    qsizetype widgets;
    /// Below the window.
    qsizetype objects;
    qsizetype descriptors;
    /// The bus's own count of what this connection wants to hear; not above 0 where it does not count.
    int matchRules;
};

Holdings holdingsOf(const QObject &window);
qint64 residentBytes();
