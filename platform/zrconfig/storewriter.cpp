// SPDX-License-Identifier: GPL-3.0-or-later
#include "storewriter.h"

#include "configfile.h"

#include <QAtomicInt>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QMap>
#include <QSettings>

#include <chrono>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

using Values = QMap<QString, QVariant>;

bool write(const QString &file, const Values &values) {
    QSettings settings(file, QSettings::IniFormat);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        settings.setValue(value.key(), value.value());
    settings.sync();
    return settings.status() == QSettings::NoError;
}

/// QSettings remembers files by name, time and size: a name used before could be answered from memory.
QString unusedName() {
    static QAtomicInt number;
    return QString::number(number.fetchAndAddRelaxed(1));
}

/// Writes the values into a new file and reads them back under another name. Empty when they do not agree.
QString writtenInFull(const QDir &directory, const Values &values) {
    const QString written = directory.filePath(unusedName());
    QString readBack = directory.filePath(unusedName());
    if (!write(written, values) || !QFile::rename(written, readBack) || valuesIn(readBack) != values)
        return {};
    return readBack;
}

/// QSettings reads a file again only when its time, in whole milliseconds, or its size has changed.
void makeNewerThan(const QString &newFile, const QString &oldFile) {
    const QDateTime old = QFileInfo(oldFile).lastModified();
    QFile file(newFile);
    if (QFileInfo(newFile).lastModified() <= old && file.open(QIODevice::ReadWrite))
        file.setFileTime(old.addMSecs(1), QFileDevice::FileModificationTime);
}

bool putInPlace(const QString &newFile, const QString &file) {
    makeNewerThan(newFile, file);
    if (QFile::exists(file))
        QFile::setPermissions(newFile, QFile::permissions(file));
    return flushToDisk(newFile) && std::rename(QFile::encodeName(newFile), QFile::encodeName(file)) == 0 &&
           flushToDisk(file);
}

void apply(const StoreChanges &changes, Values &values) {
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change.value().isValid())
            values.insert(change.key(), change.value());
        else
            values.remove(change.key());
    }
}

} // namespace

QMap<QString, QVariant> valuesIn(const QString &file) {
    const QSettings settings(file, QSettings::IniFormat);
    Values values;
    for (const QString &key : settings.allKeys())
        values.insert(key, settings.value(key));
    return values;
}

bool storeValue(const QString &file, const QString &key, const QVariant &value) {
    return storeChanges(file, {{key, value}});
}

bool storeChanges(const QString &name, const StoreChanges &changes) {
    if (!QDir().mkpath(QFileInfo(name).path()))
        return false;
    // What a link points to is replaced, not the link.
    const QFileInfo info(name);
    const QString file = info.exists() ? info.canonicalFilePath() : name;
    // Its values would be lost.
    if (info.exists() && !info.isReadable())
        return false;
    // The lock that QSettings takes for its own writing.
    QLockFile lock(file + ".lock"_L1);
    if (!lock.tryLock(5s))
        return false;

    const Values stored = valuesIn(file);
    Values values = stored;
    apply(changes, values);
    // Every start clears what is clear already; a rewrite would only wear the memory. Who wrote it may not have
    // flushed it.
    if (info.exists() && values == stored)
        return flushToDisk(file);

    QDir workplace(file + ".writing"_L1);
    workplace.removeRecursively();
    if (!workplace.mkpath(u"."_s))
        return false;
    const QString newFile = writtenInFull(workplace, values);
    const bool isStored = !newFile.isEmpty() && putInPlace(newFile, file);
    workplace.removeRecursively();
    return isStored;
}
