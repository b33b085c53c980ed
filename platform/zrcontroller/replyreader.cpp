// SPDX-License-Identifier: GPL-3.0-or-later
#include "replyreader.h"

namespace {

constexpr qsizetype longestReply = 1024 * 1024;

} // namespace

qsizetype ReplyReader::feed(QByteArrayView bytes) {
    qsizetype taken = 0;
    while (taken < bytes.size() && currentState == Incomplete) {
        const QByteArrayView rest = bytes.sliced(taken);
        const qsizetype lineFeed = rest.indexOf('\n');
        const qsizetype length = lineFeed < 0 ? rest.size() : lineFeed;
        if (text.size() + line.size() + length > longestReply) {
            currentState = TooLong;
            return taken;
        }
        line.append(rest.first(length));
        taken += length;
        if (lineFeed >= 0) {
            ++taken;
            endLine();
        }
    }
    return taken;
}

void ReplyReader::endLine() {
    if (line.endsWith('\r'))
        line.chop(1);
    if (line == ".") {
        currentState = Complete;
    } else {
        if (hasLines)
            text.append('\n');
        text.append(line.startsWith('.') ? QByteArrayView(line).sliced(1) : QByteArrayView(line));
        hasLines = true;
    }
    line.clear();
}

QString ReplyReader::reply() const {
    return QString::fromUtf8(text);
}
