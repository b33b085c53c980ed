// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QString>

/// Amounts as people read them, in the user's language.
class Amounts {
    Q_DECLARE_TR_FUNCTIONS(Amounts)

public:
    Amounts() = delete;

    /// "1.2 GB"; a kilobyte is 1000 bytes. Less than that is "12 B".
    static QString bytes(quint64 count);
    /// "3.4 of 8.0 GB used".
    static QString usedOf(quint64 used, quint64 total);
    /// "12 Mbit/s", with at most one digit after the point.
    static QString bitRate(quint64 bitsPerSecond);
    /// Whole percent of `total`, 0 when there is nothing to have a part of.
    static int percentOf(quint64 part, quint64 total);
};
