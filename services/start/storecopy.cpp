// SPDX-License-Identifier: GPL-3.0-or-later
#include "storecopy.h"

#include "pluginlists.h"

#include <storewriter.h>
#include <zrconfig.h>

#include <QDir>
#include <QFile>
#include <QFileSystemWatcher>
#include <QSet>

#include <algorithm>
#include <cstdio>
#include <filesystem>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto organisation = "talvenor"_L1;
constexpr auto storeFile = "talvenor/zr-launcher.conf"_L1;
constexpr auto storeName = "zr-launcher.conf"_L1;

bool isOfNotice(const QString &key, const QStringList &leftOut) {
    return std::any_of(leftOut.cbegin(), leftOut.cend(),
                       [&key](const QString &group) { return key.startsWith(noticeGroup(group) + u'/'); });
}

QVariant withoutNotices(const QString &key, const QVariant &value, const QStringList &leftOut) {
    if (!value.isValid() || !key.startsWith("plugins/"_L1))
        return value;
    return withoutNotices(ZrConfig::textOf(value), leftOut);
}

std::filesystem::path pathOf(const QString &name) {
    return QFile::encodeName(name).toStdString();
}

} // namespace

QMap<QString, QVariant> usersChanges(const QMap<QString, QVariant> &before,
                                     const QMap<QString, QVariant> &now, const QStringList &leftOut) {
    QMap<QString, QVariant> changes;
    const QStringList keys = before.keys() + now.keys();
    for (const QString &key : QSet<QString>(keys.cbegin(), keys.cend())) {
        const QVariant value = now.value(key);
        if (value != before.value(key) && !isOfNotice(key, leftOut))
            changes.insert(key, withoutNotices(key, value, leftOut));
    }
    return changes;
}

StoreCopy::StoreCopy(const QString &usersHome, const QString &standInHome, const StoreDifference &difference)
    : ownHome(usersHome),
      copyHome(standInHome),
      leftOut(difference.leftOut),
      watcher(new QFileSystemWatcher(this)) {
    QDir(copyHome).removeRecursively();
    const QDir directory(copyHome + u'/' + organisation);
    const QString copy = copyHome + u'/' + storeFile;
    StoreChanges values = valuesIn(ownHome + u'/' + storeFile);
    values.insert(difference.values);
    made = directory.mkpath(u"."_s) && storeChanges(copy, values);
    if (!made)
        return;
    linkTheRest();
    carried = valuesIn(copy);
    connect(watcher, &QFileSystemWatcher::directoryChanged, this, &StoreCopy::carryBack);
    watcher->addPath(directory.path());
}

StoreCopy::~StoreCopy() {
    if (!made)
        return;
    carryBack();
    carryOtherFilesBack();
    QDir(copyHome).removeRecursively();
}

void StoreCopy::linkTheRest() const {
    const auto link = [this](const QString &directory, auto isKept) {
        const QDir::Filters everything =
            QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
        for (const QString &name : QDir(ownHome + directory).entryList(everything)) {
            if (!isKept(name))
                QFile::link(ownHome + directory + u'/' + name, copyHome + directory + u'/' + name);
        }
    };
    link({}, [](const QString &name) { return name == organisation; });
    link(u'/' + organisation, [](const QString &name) { return name.startsWith(storeName); });
}

void StoreCopy::carryBack() {
    const QString copy = copyHome + u'/' + storeFile;
    // Between two files while it is being replaced, or kept aside because it was damaged.
    if (!QFile::exists(copy))
        return;
    const StoreChanges now = valuesIn(copy);
    const StoreChanges changes = usersChanges(carried, now, leftOut);
    if (!changes.isEmpty() && !storeChanges(ownHome + u'/' + storeFile, changes)) {
        std::fprintf(stderr, "What was set cannot be stored in %s.\n",
                     qPrintable(ownHome + u'/' + storeFile));
        return;
    }
    carried = now;
}

void StoreCopy::carryOtherFilesBack() const {
    for (const QString &name : QDir(copyHome + u'/' + organisation).entryList(QDir::Files)) {
        if (name.startsWith(storeName))
            QFile::remove(copyHome + u'/' + organisation + u'/' + name);
    }
    using std::filesystem::copy_options;
    std::error_code error;
    std::filesystem::create_directories(pathOf(ownHome), error);
    // What is no link is newer than what the user had.
    std::filesystem::copy(
        pathOf(copyHome), pathOf(ownHome),
        copy_options::recursive | copy_options::overwrite_existing | copy_options::skip_symlinks, error);
    if (error)
        std::fprintf(stderr, "Not all of %s could be kept: %s\n", qPrintable(copyHome),
                     error.message().c_str());
}
