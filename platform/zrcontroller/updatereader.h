// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QVariantMap>

#include <optional>

/// What one line of a card's update stream says: the new data of each stream it names.
using CardUpdate = QMap<QString, QVariantMap>;

/// Reads one line, a JSON object whose members are objects. Nothing for anything else.
std::optional<CardUpdate> cardUpdate(QByteArrayView line);

/// Cuts the bytes of an update stream into updates. Memory is bounded: a line of more than 256 KiB is dropped.
class UpdateReader {
public:
    struct Batch {
        QList<CardUpdate> updates;
        /// Lines that were no update, or were too long.
        int damagedLines = 0;
    };

    /// Takes bytes as they arrive. Empty lines say nothing.
    Batch feed(QByteArrayView bytes);

private:
    void append(QByteArrayView bytes);
    void endLine(Batch &batch);

    QByteArray line;
    bool isTooLong = false;
};
