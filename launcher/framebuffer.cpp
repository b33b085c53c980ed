// SPDX-License-Identifier: GPL-3.0-or-later
#include "framebuffer.h"

#include "hostpath.h"

#include <QFile>

#include <cstdio>
#include <linux/fb.h>
#include <sys/ioctl.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int heightWithoutFramebuffer = 600;

} // namespace

int fbHeight() {
    std::FILE *const device = std::fopen(QFile::encodeName(hostPath(u"/dev/fb0"_s)), "r");
    if (!device)
        return heightWithoutFramebuffer;
    fb_var_screeninfo info = {};
    // A device that refuses stays open for the life of the process; it is asked once.
    if (::ioctl(::fileno(device), FBIOGET_VSCREENINFO, &info) < 0)
        return heightWithoutFramebuffer;
    std::fclose(device);
    return static_cast<int>(info.yres);
}
