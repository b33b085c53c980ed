// SPDX-License-Identifier: GPL-3.0-or-later
#include "linesplitter.h"
#include "rsyncprogress.h"

#include <cstdlib>

/// Whatever a copying program prints, what is left lies between nothing and the total, and no line is kept for ever.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    LineSplitter splitter;
    RsyncProgress progress;
    for (const QByteArray &part : {bytes.first(bytes.size() / 2), bytes.sliced(bytes.size() / 2)}) {
        for (const QByteArray &line : splitter.add(part)) {
            if (line.isEmpty() || line.size() > LineSplitter::longestLine)
                std::abort();
            progress.read(line);
            if (progress.left() < 0 || progress.left() > progress.total())
                std::abort();
        }
    }
    return 0;
}
