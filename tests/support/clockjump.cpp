// SPDX-License-Identifier: GPL-3.0-or-later
// A wall clock that can be set under a running program, without touching that of the machine: preloaded (LD_PRELOAD),
// it adds the seconds in the file CLOCK_JUMP to whatever asks for the time of day. The file holds one 64-bit integer and
// may change at any moment. The clocks that nobody sets, kernel timers and the times of files stay as they are.

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

const volatile std::int64_t *mappedJump() {
    const char *const name = std::getenv("CLOCK_JUMP");
    const int descriptor = name ? ::open(name, O_RDONLY | O_CLOEXEC) : -1;
    if (descriptor < 0)
        return nullptr;
    void *const memory = ::mmap(nullptr, sizeof(std::int64_t), PROT_READ, MAP_SHARED, descriptor, 0);
    ::close(descriptor);
    return memory == MAP_FAILED ? nullptr : static_cast<const volatile std::int64_t *>(memory);
}

std::int64_t jumpSeconds() {
    static const volatile std::int64_t *const jump = mappedJump();
    return jump ? *jump : 0;
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec *moment) noexcept {
    const auto status = static_cast<int>(::syscall(SYS_clock_gettime, clock, moment));
    if (status == 0 && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE))
        moment->tv_sec += static_cast<time_t>(jumpSeconds());
    return status;
}

extern "C" int gettimeofday(timeval *moment, void *) noexcept {
    timespec now{};
    const int status = ::clock_gettime(CLOCK_REALTIME, &now);
    moment->tv_sec = now.tv_sec;
    moment->tv_usec = now.tv_nsec / 1000;
    return status;
}

extern "C" time_t time(time_t *moment) noexcept {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    if (moment)
        *moment = now.tv_sec;
    return now.tv_sec;
}
