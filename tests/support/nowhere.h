// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>

/// A pointer that nothing can be behind, and that neither compiler nor sanitizers see through.
inline volatile std::uintptr_t addressOfNothing = 16;

[[gnu::noinline]] inline void writeNowhere() {
    *reinterpret_cast<volatile int *>(addressOfNothing) = 1;
}
