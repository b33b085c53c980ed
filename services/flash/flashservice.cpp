// SPDX-License-Identifier: GPL-3.0-or-later
#include "flashservice.h"

#include "flashannouncement.h"

#include <algorithm>
#include <iostream>

using namespace Qt::Literals::StringLiterals;

namespace {

// mount(8): mount failure.
constexpr int mountFailure = 32;

} // namespace

FlashService::FlashService(const QDBusConnection &systemBus, std::chrono::milliseconds mountLimit)
    : udisks(systemBus), helper(mountLimit) {
    search.setSingleShot(true);
    connect(&search, &QTimer::timeout, this, &FlashService::mountNew);
    connect(&udisks, &UDisksWatcher::changed, this, [this] {
        // At once, lest a drive that comes back meanwhile be taken for the one that went.
        dropGone();
        search.start();
    });
    connect(&helper, &MountHelper::mountTimedOut, this, &FlashService::mountTimedOut);
    connect(&helper, &MountHelper::mountEnded, this, &FlashService::mountEnded);
    connect(&helper, &MountHelper::unmountEnded, &search, qOverload<>(&QTimer::start));
}

void FlashService::dropGone() {
    for (auto attempt = attempts.begin(); attempt != attempts.end();) {
        const QString name = attempt.key();
        const auto partition = flashVerdict(udisks.objects(), attempt->path).partition;
        if (partition && partition->name == name && partition->drive == attempt->drive) {
            ++attempt;
            continue;
        }
        const bool wasMounted = attempt->state == Mounted;
        attempt = attempts.erase(attempt);
        // One that is being mounted is unmounted when that has ended.
        if (wasMounted) {
            FlashAnnouncement::removed(name);
            helper.unmount(name);
        }
    }
}

void FlashService::mountNew() {
    const UDisksObjects &objects = udisks.objects();
    refused.removeIf([&objects](const QDBusObjectPath &path) { return !objects.contains(path); });
    for (const QDBusObjectPath &path : objects.keys()) {
        const auto [partition, refusal] = flashVerdict(objects, path);
        if (!refusal.isEmpty())
            tellRefusal(path, refusal);
        if (!partition || helper.isLoaded() || helper.isBusy(partition->name) ||
            attempts.contains(partition->name) || isDriveInUse(partition->drive))
            continue;
        begin(partition->name, {path, partition->drive, Mounting});
    }
}

void FlashService::tellRefusal(const QDBusObjectPath &path, const QString &refusal) {
    if (refused.contains(path))
        return;
    refused.insert(path);
    std::cerr << "zr-flash-service: " << qPrintable(refusal) << std::endl;
}

bool FlashService::isDriveInUse(const QDBusObjectPath &drive) const {
    return std::any_of(attempts.cbegin(), attempts.cend(), [&drive](const Attempt &attempt) {
        return attempt.drive == drive && attempt.state != Failed;
    });
}

void FlashService::begin(const QString &name, const Attempt &attempt) {
    attempts.insert(name, attempt);
    helper.mount(name);
}

void FlashService::mountTimedOut(const QString &name) {
    const auto attempt = attempts.find(name);
    if (attempt == attempts.end())
        return;
    attempt->state = Failed;
    std::cerr << "zr-flash-service: mounting " << qPrintable(name) << " takes too long" << std::endl;
    FlashAnnouncement::mountFailed(mountFailure);
    search.start();
}

void FlashService::mountEnded(const QString &name, int exitCode) {
    const auto attempt = attempts.find(name);
    if (attempt == attempts.end() || attempt->state != Mounting) {
        // Pulled meanwhile, or given up: whatever came of it, nobody wants it.
        helper.unmount(name);
    } else if (exitCode == 0) {
        attempt->state = Mounted;
        FlashAnnouncement::inserted(name);
    } else {
        attempt->state = Failed;
        FlashAnnouncement::mountFailed(exitCode);
    }
    search.start();
}
