// SPDX-License-Identifier: GPL-3.0-or-later
// A framebuffer on a desk: preloaded into the unchanged launcher (LD_PRELOAD), it lets an ordinary file answer
// the kernel's request for the variable screen information (linux/fb.h). The file holds the height in pixels as
// text. Every other request goes to the C library.

#include <cstdarg>
#include <cstdlib>
#include <dlfcn.h>
#include <linux/fb.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

bool isOrdinaryFile(int descriptor) {
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
}

int answerScreenInformation(int descriptor, fb_var_screeninfo *info) {
    char text[16] = {};
    if (::pread(descriptor, text, sizeof text - 1, 0) <= 0)
        return -1;
    *info = {};
    info->xres = 800;
    info->yres = static_cast<unsigned int>(std::strtoul(text, nullptr, 10));
    info->bits_per_pixel = 32;
    return 0;
}

} // namespace

extern "C" int ioctl(int descriptor, unsigned long request, ...) noexcept {
    va_list arguments;
    va_start(arguments, request);
    void *const argument = va_arg(arguments, void *);
    va_end(arguments);
    if (request == FBIOGET_VSCREENINFO && isOrdinaryFile(descriptor))
        return answerScreenInformation(descriptor, static_cast<fb_var_screeninfo *>(argument));

    using Ioctl = int (*)(int, unsigned long, ...);
    static const auto libraryIoctl = reinterpret_cast<Ioctl>(::dlsym(RTLD_NEXT, "ioctl"));
    return libraryIoctl(descriptor, request, argument);
}
