// SPDX-License-Identifier: GPL-3.0-or-later
#include "configfile.h"

#include <QDateTime>
#include <QDir>
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

/// Walks over the lines of a store as QSettings does, and remembers the first thing that is not part of one. Where
/// the two disagreed, a value would be lost without a word.
class IniChecker {
public:
    explicit IniChecker(QByteArrayView text) : remaining(text) {
        if (remaining.startsWith("\xef\xbb\xbf"))
            remaining = remaining.sliced(3);
    }

    QString firstDamage() {
        while (skipToNextLine()) {
            const int startLine = currentLine;
            const std::optional<Line> line = nextLine();
            if (!line)
                return u"the quote opened in line %1 never ends"_s.arg(startLine);
            if (line->text.contains('\0'))
                return u"line %1 holds a NUL"_s.arg(startLine);
            if (!isPartOfStore(*line))
                return u"line %1 is neither a section nor a value"_s.arg(startLine);
        }
        return {};
    }

private:
    struct Line {
        QByteArrayView text;
        bool hasEquals = false;
    };

    static bool isSpace(char character) {
        return character == ' ' || character == '\t' || character == '\n' || character == '\r' ||
               character == '\v' || character == '\f';
    }

    void drop(qsizetype count) {
        currentLine += static_cast<int>(remaining.first(count).count('\n'));
        remaining = remaining.sliced(count);
    }

    /// Past white space and comments; false at the end. A comment may also follow a value in its line.
    bool skipToNextLine() {
        while (!remaining.isEmpty()) {
            if (remaining[0] == ';')
                drop(lengthOfPhysicalLine());
            else if (isSpace(remaining[0]))
                drop(1);
            else
                return true;
        }
        return false;
    }

    qsizetype lengthOfPhysicalLine() const {
        qsizetype length = 0;
        while (length < remaining.size() && remaining[length] != '\n' && remaining[length] != '\r')
            ++length;
        return length;
    }

    /// One line, continued while a quote is open or the line end is escaped; nothing when a quote stays open.
    std::optional<Line> nextLine() {
        Line line;
        bool inQuotes = false;
        qsizetype end = 0;
        for (; end < remaining.size(); ++end) {
            const char character = remaining[end];
            if (character == '"')
                inQuotes = !inQuotes;
            else if (character == '\\')
                ++end;
            else if (!inQuotes && (character == '\n' || character == '\r' || character == ';'))
                break;
            else if (!inQuotes && character == '=')
                line.hasEquals = true;
        }
        end = qMin(end, remaining.size());
        line.text = remaining.first(end);
        drop(end);
        if (inQuotes)
            return std::nullopt;
        return line;
    }

    /// QSettings passes over a line that begins with a hash sign and holds no value; people write comments so.
    static bool isPartOfStore(const Line &line) {
        return line.text.startsWith('[') ? line.text.contains(']')
                                         : line.hasEquals || line.text.startsWith('#');
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

void tellUnreadable(const QString &file) {
    std::fprintf(stderr, "The configuration %s cannot be read; the defaults are used.\n", qPrintable(file));
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

/// QSettings settles its directories at its first use, so a name stays; but asking for it reads the files every time.
QString storeFile(QSettings::Scope scope, const QString &application) {
    static QMutex nameMutex;
    static QHash<std::pair<int, QString>, QString> knownNames;
    const QMutexLocker lock(&nameMutex);
    const auto known = knownNames.constFind({scope, application});
    if (known != knownNames.cend())
        return *known;
    // Letters of our own: those of a literal go with the plug-in that they stand in.
    const QString key(application.constData(), application.size());
    const QSettings settings(QSettings::NativeFormat, scope, u"talvenor"_s, application);
    return *knownNames.insert({scope, key}, settings.fileName());
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
    return storeFile(QSettings::UserScope, application);
}

QString systemStoreFile(const QString &application) {
    return storeFile(QSettings::SystemScope, application);
}

void tellDamagedSystemStore(const QString &file) {
    const QFileInfo info(file);
    if (!info.exists() || isUnchangedSinceLastLook(info))
        return;
    const QString damage = damageInFile(info);
    if (!damage.isEmpty())
        std::fprintf(stderr, "The configuration %s is damaged (%s).\n", qPrintable(file), qPrintable(damage));
}

void setDamagedStoreAside(const QString &file) {
    const QFileInfo info(file);
    if (!info.exists() || isUnchangedSinceLastLook(info))
        return;
    if (!info.isReadable()) {
        tellUnreadable(file);
        return;
    }
    const QString damage = damageInFile(info);
    if (!damage.isEmpty())
        setAside(file, damage);
}

bool flushToDisk(const QString &file) {
    const QString directory = QFileInfo(file).path();
    if (!flushDescriptor(file, O_RDONLY) || !flushDescriptor(directory, O_RDONLY | O_DIRECTORY))
        return false;
    // The directories above may be as new as the file: their names have to last too. One that we may not even read is
    // not ours, and was there before.
    QDir above(directory);
    while (above.cdUp() && !above.isRoot() && flushDescriptor(above.path(), O_RDONLY | O_DIRECTORY)) {
    }
    return true;
}
