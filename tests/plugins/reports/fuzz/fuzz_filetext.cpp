// SPDX-License-Identifier: GPL-3.0-or-later
#include "filetext.h"

#include <QStringList>

#include <cstdlib>

namespace {

constexpr qsizetype longestLine = 80;
constexpr qsizetype bytesInLine = 16;

void checkLines(const QString &text) {
    QString joined = withShortLines(text, longestLine);
    for (const QString &line : joined.split(u'\n')) {
        // A character of two halves is not cut.
        if (line.size() > longestLine + 1)
            std::abort();
    }
    if (joined.remove(u'\n') != QString(text).remove(u'\n'))
        std::abort();
}

} // namespace

/// Saved files, whatever somebody put among the reports.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (const std::optional<QString> text = textIn(bytes))
        checkLines(*text);
    const qsizetype lines = (bytes.size() + bytesInLine - 1) / bytesInLine;
    if (!bytes.isEmpty() && hexDump(bytes).count(u'\n') != lines - 1)
        std::abort();
    return 0;
}
