// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

/// Where one of a card's two lines ends.
struct CardAddress {
    enum Kind { Unix, Tcp, Serial };

    Kind kind;
    /// Path of the socket, host name or number, or device file.
    QString place;
    /// Port number of Tcp, bits a second of Serial; 0 for Unix.
    int number;

    bool operator==(const CardAddress &) const = default;
};

/// Reads "unix:PATH", "tcp:HOST:PORT" or "serial:DEVICE[:BAUD]" (115200 baud unless stated). An IPv6 number stands in
/// brackets. Nothing for any other text.
std::optional<CardAddress> cardAddress(const QString &text);
