// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashpartition.h"

#include <cstdlib>

/// Whatever a device is called, what goes to the mount helper is a plain name.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArray device(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<QString> name = partitionName(device);
    if (!name)
        return 0;
    constexpr QStringView plain = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_-";
    for (const QChar character : *name) {
        if (!plain.contains(character))
            std::abort();
    }
    if (name->size() > 31 || name->size() < 2 || !device.startsWith("/dev/" + name->toLatin1()))
        std::abort();
    return 0;
}
