// SPDX-License-Identifier: GPL-3.0-or-later
#include "replyreader.h"
#include "timelimit.h"

#include <cstdlib>

/// A reply in one piece and in single bytes has to be the same, and its length is bounded by what arrived.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    ReplyReader whole;
    const qsizetype taken = whole.feed(bytes);
    ReplyReader single;
    qsizetype singlyTaken = 0;
    while (singlyTaken < bytes.size() && single.feed(bytes.sliced(singlyTaken, 1)) == 1)
        ++singlyTaken;
    if (whole.state() != single.state() || whole.reply() != single.reply() || taken != singlyTaken)
        std::abort();
    if (whole.reply().size() > bytes.size())
        std::abort();
    const auto limit = statedTimeLimit(whole.reply());
    if (limit.count() < 100 || limit.count() > 10'000)
        std::abort();
    return 0;
}
