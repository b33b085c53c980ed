// SPDX-License-Identifier: GPL-3.0-or-later
#include "linesplitter.h"

#include <algorithm>

namespace {

bool isLineEnd(char character) {
    return character == '\n' || character == '\r';
}

} // namespace

QList<QByteArray> LineSplitter::add(const QByteArray &bytes) {
    QList<QByteArray> lines;
    auto from = bytes.cbegin();
    while (from != bytes.cend()) {
        const auto end = std::find_if(from, bytes.cend(), isLineEnd);
        append(QByteArray(from, end - from));
        if (end == bytes.cend())
            break;
        if (!begun.isEmpty() && !isTooLong)
            lines.append(begun);
        begun.clear();
        isTooLong = false;
        from = end + 1;
    }
    return lines;
}

void LineSplitter::append(const QByteArray &part) {
    isTooLong = isTooLong || begun.size() + part.size() > longestLine;
    if (isTooLong)
        begun.clear();
    else
        begun.append(part);
}
