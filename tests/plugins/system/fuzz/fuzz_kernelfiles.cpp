// SPDX-License-Identifier: GPL-3.0-or-later
#include "cputimes.h"
#include "memoryuse.h"
#include "mounts.h"
#include "processorname.h"
#include "uptime.h"

#include <cstdlib>

namespace {

void check(bool holds) {
    if (!holds)
        std::abort();
}

void checkLoad(QByteArrayView earlierStat, QByteArrayView laterStat) {
    const std::optional<CpuTimes> earlier = cpuTimesIn(earlierStat);
    const std::optional<CpuTimes> later = cpuTimesIn(laterStat);
    if (!earlier || !later)
        return;
    const std::optional<int> load = loadBetween(*earlier, *later);
    check(!load || (*load >= 0 && *load <= 100));
}

void checkMounts(QByteArrayView text) {
    for (const Mount &mount : localMountsIn(text))
        check(mount.directory == QLatin1String("/") || mount.device.startsWith(u'/'));
}

} // namespace

/// Files of the kernel, whichever one of them it takes the bytes for.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArrayView bytes(data, static_cast<qsizetype>(size));
    const qsizetype half = bytes.size() / 2;
    checkLoad(bytes.first(half), bytes.sliced(half));
    checkLoad(QByteArrayView("cpu 0 0 0 0"), bytes);
    if (const std::optional<MemoryUse> memory = memoryUseIn(bytes))
        check(memory->used <= memory->total && memory->total > 0);
    checkMounts(bytes);
    const QString processor = processorNameIn(bytes);
    check(processor == processor.simplified());
    if (const auto uptime = uptimeIn(bytes))
        check(uptime->count() >= 0);
    return 0;
}
