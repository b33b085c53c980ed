// SPDX-License-Identifier: GPL-3.0-or-later
#include "power/apminfo.h"
#include "power/mixerlisting.h"

#include <cstdlib>

/// Lines of the kernel and listings of the mixer, whatever they hold.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const ApmInfo info = apmInfo(text.trimmed());
    if (info.units.contains(u' ') || info.driverVersion.contains(u' '))
        std::abort();
    const MixerLevels levels = mixerLevels(text);
    if (levels != mixerLevels(text + u'\n' + text))
        std::abort();
    return 0;
}
