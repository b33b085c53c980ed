// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

class QObject;
class QString;

/// What a program holds that must not become more.
struct Holdings {
    struct Counts {
        qint64 widgets;
        /// Below the window.
        qint64 objects;
        qint64 descriptors;
        /// The bus's own count of what this connection wants to hear; not above 0 where it does not count.
        qint64 matchRules;

        bool operator==(const Counts &) const = default;
    };

    Counts counts;
    /// What the kernel gave, and of that what is in use: the rest lies between pieces that are.
    qint64 residentBytes;
    qint64 allocatedBytes;
};

Holdings holdingsOf(const QObject &window);

/// What became more, or fewer, or nothing. Counts have to stay the same, resident memory may grow by less than `mostGrowthBytes`;
/// how much it grew is printed.
QString differenceBetween(const Holdings &before, const Holdings &after, qint64 mostGrowthBytes);
