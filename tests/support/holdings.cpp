// SPDX-License-Identifier: GPL-3.0-or-later
#include "holdings.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QDir>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

int matchRules() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusInterface stats(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                         u"org.freedesktop.DBus.Debug.Stats"_s, bus);
    const QDBusReply<QVariantMap> reply = stats.call(u"GetConnectionStats"_s, bus.baseService());
    return reply.isValid() ? reply.value().value(u"MatchRules"_s, -1).toInt() : -1;
}

qint64 residentBytes() {
    // What was freed counts as free only when it was given back.
    ::malloc_trim(0);
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    return file.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

qint64 allocatedBytes() {
    const struct mallinfo2 allocated = ::mallinfo2();
    return static_cast<qint64>(allocated.uordblks + allocated.hblkhd);
}

QString textOf(const Holdings::Counts &counts) {
    return u"%1 widgets, %2 objects, %3 descriptors, %4 match rules"_s.arg(counts.widgets)
        .arg(counts.objects)
        .arg(counts.descriptors)
        .arg(counts.matchRules);
}

} // namespace

Holdings holdingsOf(const QObject &window) {
    return {{QApplication::allWidgets().size(), window.findChildren<QObject *>().size(),
             QDir(u"/proc/self/fd"_s).entryList().size(), matchRules()},
            residentBytes(),
            allocatedBytes()};
}

QString differenceBetween(const Holdings &before, const Holdings &after, qint64 mostGrowthBytes) {
    const qint64 growth = after.residentBytes - before.residentBytes;
    qInfo("resident memory grew by %lld bytes, to %lld; what is in use by %lld",
          static_cast<long long>(growth), static_cast<long long>(after.residentBytes),
          static_cast<long long>(after.allocatedBytes - before.allocatedBytes));
    if (before.counts.matchRules <= 0)
        return u"the bus does not count match rules"_s;
    if (after.counts != before.counts)
        return u"%1 instead of %2"_s.arg(textOf(after.counts), textOf(before.counts));
    // The address sanitizer keeps freed memory for a while, so there is nothing to learn from it there.
    if (!MEMORY_IS_MEASURED || growth < mostGrowthBytes)
        return {};
    return u"resident memory grew by %1 bytes"_s.arg(growth);
}
