// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemreader.h"

#include "processorname.h"
#include "uptime.h"

#include <boundedread.h>

#include <QSysInfo>

#include <sys/utsname.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 mostBytes = 1 << 18;
// A tenth of a second on one processor. Over less the load would jump between 0 and 100.
constexpr quint64 fewestTicks = 10;

QString kernelName() {
    utsname name{};
    ::uname(&name);
    return QString::fromLocal8Bit(name.sysname) + u' ' + QString::fromLocal8Bit(name.release);
}

} // namespace

SystemReader::SystemReader(const SystemSources &sources, const QString &launcherVersion)
    : systemSources(sources) {
    constants.launcher = launcherVersion;
    constants.kernel = kernelName();
    constants.processor = processorName();
}

QByteArray SystemReader::procFile(const QString &name) const {
    return boundedRead(systemSources.procDirectory + u'/' + name, mostBytes);
}

QString SystemReader::processorName() const {
    QString name = processorNameIn(procFile(u"cpuinfo"_s));
    if (!name.isEmpty())
        return name;
    // The text ends in a null byte.
    const QString board = QString::fromUtf8(procFile(u"device-tree/model"_s).constData()).simplified();
    return board.isEmpty() ? QSysInfo::currentCpuArchitecture() : board;
}

void SystemReader::updateLoad() {
    const std::optional<CpuTimes> times = cpuTimesIn(procFile(u"stat"_s));
    if (!times) {
        lastLoad.reset();
    } else if (times->total < lastTimes.total || times->total - lastTimes.total >= fewestTicks) {
        lastLoad = loadBetween(lastTimes, *times);
        lastTimes = *times;
    }
}

SystemState SystemReader::read() {
    updateLoad();
    SystemState state = constants;
    state.host = QSysInfo::machineHostName();
    state.load = lastLoad;
    state.memory = memoryUseIn(procFile(u"meminfo"_s));
    state.uptime = uptimeIn(procFile(u"uptime"_s));
    state.root = volumeOf(systemSources.rootDirectory);
    state.home = volumeOf(systemSources.homeDirectory);
    if (state.root && state.home && state.root->device == state.home->device)
        state.home.reset();
    return state;
}

QList<MountedVolume> SystemReader::readStorage() const {
    QList<MountedVolume> volumes;
    for (const Mount &mount : localMountsIn(procFile(u"mounts"_s))) {
        const std::optional<Volume> volume = volumeOf(mount.directory);
        if (volume && volume->total > 0)
            volumes.append({mount, *volume});
    }
    return volumes;
}
