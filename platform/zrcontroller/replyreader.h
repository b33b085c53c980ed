// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// Puts together one reply: lines up to a line that holds a single ".". A line that begins with a dot arrives with one
/// dot more. A carriage return before the line feed does not count.
///
/// Memory is bounded: a reply of more than 1 MiB is given up.
class ReplyReader {
public:
    enum State { Incomplete, Complete, TooLong };

    /// Takes bytes as they arrive, up to the end of the reply. Returns how many were taken.
    qsizetype feed(QByteArrayView bytes);

    State state() const { return currentState; }
    /// Whether anything has arrived yet.
    bool isEmpty() const { return text.isEmpty() && line.isEmpty() && currentState == Incomplete; }
    /// The lines received so far, with a line feed between them, read as UTF-8.
    QString reply() const;

private:
    void endLine();

    QByteArray text;
    QByteArray line;
    bool hasLines = false;
    State currentState = Incomplete;
};
