// SPDX-License-Identifier: GPL-3.0-or-later
#include "startstate.h"

#include <cstdlib>

/// What was remembered, whole or damaged: what can be read is written as it was read.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const std::optional<StartState> state =
        stateFrom(QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    if (state && stateFrom(toBytes(*state)) != state)
        std::abort();
    return 0;
}
