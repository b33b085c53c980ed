// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networkreader.h"

#include <QCoreApplication>

/// Puts interfaces into words, in the user's language.
class NetworkTexts {
    Q_DECLARE_TR_FUNCTIONS(NetworkTexts)

public:
    NetworkTexts() = delete;

    static QString stateText(LinkState state);
    /// "Up, 1 Gbit/s".
    static QString linkText(const NetworkInterface &interface);
    /// "12 Mbit/s", or a dash when the rate is not known yet.
    static QString rateText(const std::optional<quint64> &bitsPerSecond);
    /// The addresses for a table: one a line, a long one in two; the last line counts those that are too many.
    static QStringList addressLines(const QStringList &addresses);
    /// The interface that others reach the machine by, and its first address; nothing when there is none.
    static std::optional<QString> primaryAddress(const QList<MeasuredInterface> &interfaces);
};
