// SPDX-License-Identifier: GPL-3.0-or-later
#include "configfile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QMutex>
#include <QSettings>

#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 largestStoreBytes = 1024 * 1024;

/// Walks over the lines of a store and remembers the first thing that is not part of one.
class IniChecker {
public:
    explicit IniChecker(QByteArrayView text) : remaining(text) {}

    QString firstDamage() {
        while (!remaining.isEmpty()) {
            const int startLine = currentLine;
            const std::optional<QByteArray> line = nextLogicalLine();
            if (!line)
                return u"the quote opened in line %1 never ends"_s.arg(startLine);
            if (line->contains('\0'))
                return u"line %1 holds a NUL"_s.arg(startLine);
            if (!isPartOfStore(line->trimmed()))
                return u"line %1 is neither a section nor a value"_s.arg(startLine);
        }
        return {};
    }

private:
    /// One line, continued while a quote is open or the line end is escaped; nothing when a quote stays open.
    std::optional<QByteArray> nextLogicalLine() {
        bool inQuotes = false;
        bool hasEquals = false;
        qsizetype end = 0;
        for (; end < remaining.size(); ++end) {
            const char character = remaining[end];
            if (character == '\n') {
                ++currentLine;
                if (!inQuotes)
                    break;
            } else if (character == '\\') {
                ++end;
                if (end < remaining.size() && remaining[end] == '\n')
                    ++currentLine;
            } else if (character == '=') {
                hasEquals = true;
            } else if (character == '"' && hasEquals && !isComment(remaining)) {
                inQuotes = !inQuotes;
            }
        }
        end = qMin(end, remaining.size());
        const QByteArray line = remaining.first(end).toByteArray();
        remaining = remaining.sliced(qMin(end + 1, remaining.size()));
        if (inQuotes)
            return std::nullopt;
        return line;
    }

    static bool isComment(QByteArrayView line) { return line.startsWith(';') || line.startsWith('#'); }

    static bool isPartOfStore(QByteArrayView line) {
        return line.isEmpty() || isComment(line) || (line.startsWith('[') && line.contains(']')) ||
               line.contains('=');
    }

    QByteArrayView remaining;
    int currentLine = 1;
};

/// Reads no more than is needed to judge the file; what is not a plain file is not opened at all.
QString damageInFile(const QFileInfo &info) {
    if (!info.isFile())
        return u"it is not a file"_s;
    if (info.size() > largestStoreBytes)
        return u"it is larger than 1 MiB"_s;
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return damageIn(file.read(largestStoreBytes));
}

void setAside(const QString &file, const QString &damage) {
    const QString aside = file + ".damaged"_L1;
    const bool moved = std::rename(QFile::encodeName(file), QFile::encodeName(aside)) == 0;
    const QString outcome = moved ? u"it is kept as %1 and the defaults are used"_s.arg(aside)
                                  : u"it cannot be kept aside: %1"_s.arg(qt_error_string());
    std::fprintf(stderr, "The configuration %s is damaged (%s); %s.\n", qPrintable(file), qPrintable(damage),
                 qPrintable(outcome));
}

bool isUnchangedSinceLastLook(const QFileInfo &info) {
    struct Look {
        QDateTime modified;
        qint64 size = -1;
    };
    static QMutex lookMutex;
    static QHash<QString, Look> lastLooks;
    const QMutexLocker lock(&lookMutex);
    Look &last = lastLooks[info.filePath()];
    if (last.modified == info.lastModified() && last.size == info.size())
        return true;
    last = {info.lastModified(), info.size()};
    return false;
}

bool flushDescriptor(const QString &path, int flags) {
    const int descriptor = ::open(QFile::encodeName(path), flags | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool flushed = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return flushed;
}

} // namespace

QString damageIn(QByteArrayView text) {
    return IniChecker(text).firstDamage();
}

QString userStoreFile(const QString &application) {
    return QSettings(QSettings::NativeFormat, QSettings::UserScope, u"talvenor"_s, application).fileName();
}

void setDamagedStoreAside(const QString &file) {
    const QFileInfo info(file);
    if (!info.exists() || isUnchangedSinceLastLook(info))
        return;
    const QString damage = damageInFile(info);
    if (!damage.isEmpty())
        setAside(file, damage);
}

bool flushToDisk(const QString &file) {
    // The store's own directory may be as new as the file: its name has to last too.
    const QString directory = QFileInfo(file).path();
    const QString parent = QFileInfo(directory).path();
    return flushDescriptor(file, O_RDONLY) && flushDescriptor(directory, O_RDONLY | O_DIRECTORY) &&
           flushDescriptor(parent, O_RDONLY | O_DIRECTORY);
}
