// SPDX-License-Identifier: GPL-3.0-or-later
#include "trace.h"

#include <cstdlib>

/// What a launcher writes before it crashes, in one piece and in two, is the same and of bounded size.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    TraceReader whole;
    whole.read(bytes);
    TraceReader parts;
    parts.read(bytes.first(bytes.size() / 2));
    parts.read(bytes.sliced(bytes.size() / 2));
    if (whole.lines() != parts.lines() || whole.modules() != parts.modules() ||
        whole.loadedPlugin() != parts.loadedPlugin())
        std::abort();
    constexpr qsizetype mostLines = 64;
    constexpr qsizetype longestLine = 4096;
    if (whole.lines().size() > mostLines || whole.modules().size() > whole.lines().size())
        std::abort();
    for (const QByteArray &line : whole.lines()) {
        if (line.size() > longestLine)
            std::abort();
    }
    return 0;
}
