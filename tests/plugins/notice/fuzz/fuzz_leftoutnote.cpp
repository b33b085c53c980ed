// SPDX-License-Identifier: GPL-3.0-or-later
#include "leftoutnote.h"

#include <cstdlib>

/// Notes that another program left, whole or not: there is always something to be read.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const auto note =
        LeftOutNote::from(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (note.headline().isEmpty() || note.reason().isEmpty() || !note.report().contains(note.trace()))
        std::abort();
    return 0;
}
