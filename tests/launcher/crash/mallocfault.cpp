// SPDX-License-Identifier: GPL-3.0-or-later
// Crashes in the allocator, with its lock held: whoever allocates afterwards waits for ever.
#include "crashhandler.h"

#include <nowhere.h>

#include <atomic>
#include <cstddef>
#include <new>

extern "C" {

void *__libc_malloc(std::size_t size);

std::atomic<bool> allocatorFaults = false;
std::atomic_flag allocatorIsLocked;

[[gnu::noinline]] void *malloc(std::size_t size) noexcept {
    while (allocatorIsLocked.test_and_set()) {
    }
    if (allocatorFaults)
        writeNowhere();
    void *const memory = __libc_malloc(size);
    allocatorIsLocked.clear();
    return memory;
}
}

int main() {
    installCrashHandler();
    allocatorFaults = true;
    ::operator delete(::operator new(100));
    return 0;
}
