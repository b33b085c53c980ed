// SPDX-License-Identifier: GPL-3.0-or-later
// Takes the place of the C library's functions in the program that it is linked into: each flush to the disk and each
// change of a name is told on standard output before it is done.
#include <array>
#include <climits>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

void tell(const std::string &step) {
    std::puts(step.c_str());
    std::fflush(stdout);
}

std::string nameOf(int descriptor) {
    std::array<char, PATH_MAX> name{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = ::readlink(link.c_str(), name.data(), name.size());
    return {name.data(), static_cast<size_t>(length > 0 ? length : 0)};
}

} // namespace

extern "C" int fsync(int descriptor) {
    tell("flush " + nameOf(descriptor));
    return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

extern "C" int rename(const char *from, const char *to) noexcept {
    tell(std::string("rename ") + from + ' ' + to);
    return static_cast<int>(::syscall(SYS_renameat2, AT_FDCWD, from, AT_FDCWD, to, 0));
}
