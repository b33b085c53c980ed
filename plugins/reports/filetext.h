// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The bytes as text: UTF-8 (its last character may be cut off), otherwise Latin-1. Nothing when they hold
/// control characters that no text has.
std::optional<QString> textIn(const QByteArray &bytes);

/// The bytes as lines of offset, sixteen bytes in hexadecimal, and the same as characters.
QString hexDump(const QByteArray &bytes);

/// The text with a line end put into every line that is longer than `longest`. Laying out one endless line would
/// hold the window up.
QString withShortLines(const QString &text, qsizetype longest);
