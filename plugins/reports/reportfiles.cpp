// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportfiles.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using Directory = std::unique_ptr<DIR, int (*)(DIR *)>;

Directory openDirectory(const QString &directory) {
    return {::opendir(QFile::encodeName(directory).constData()), ::closedir};
}

std::optional<ReportFile> fileAt(int directory, const char *name) {
    struct stat entry {};
    struct stat target {};
    const bool isThere = ::fstatat(directory, name, &entry, AT_SYMLINK_NOFOLLOW) == 0 &&
                         ::fstatat(directory, name, &target, 0) == 0;
    if (!isThere || !S_ISREG(target.st_mode))
        return std::nullopt;
    const qint64 modified = qint64(entry.st_mtim.tv_sec) * 1000 + entry.st_mtim.tv_nsec / 1'000'000;
    return ReportFile{name, static_cast<quint64>(target.st_size), QDateTime::fromMSecsSinceEpoch(modified)};
}

bool isNewer(const ReportFile &one, const ReportFile &other) {
    return one.modified != other.modified ? one.modified > other.modified : one.name < other.name;
}

} // namespace

ReportListing reportsIn(const QString &directory, qsizetype mostFiles) {
    ReportListing listing;
    const Directory entries = openDirectory(directory);
    if (!entries) {
        if (errno != ENOENT)
            listing.error = qt_error_string(errno);
        return listing;
    }
    while (const dirent *const entry = ::readdir(entries.get())) {
        const std::optional<ReportFile> file = fileAt(::dirfd(entries.get()), entry->d_name);
        if (!file)
            continue;
        listing.isCut = listing.files.size() == mostFiles;
        if (listing.isCut)
            break;
        listing.files.append(*file);
    }
    std::sort(listing.files.begin(), listing.files.end(), isNewer);
    return listing;
}

QString shownName(const QByteArray &name) {
    QString shown = QString::fromUtf8(name);
    for (QChar &character : shown) {
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = QChar::ReplacementCharacter;
    }
    return shown;
}

bool openReport(QFile &file, const QString &directory, const QByteArray &name) {
    const QByteArray path = QFile::encodeName(directory) + '/' + name;
    // A pipe that somebody has put there would otherwise wait for its writer.
    const int descriptor = ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat status {};
    if (descriptor >= 0 && ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode))
        return file.open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    if (descriptor >= 0)
        ::close(descriptor);
    return false;
}

std::optional<QString> deleteReport(const QString &directory, const QByteArray &name) {
    if (name.contains('/'))
        return qt_error_string(EINVAL);
    const Directory entries = openDirectory(directory);
    // Unlinking never follows a link.
    if (!entries || ::unlinkat(::dirfd(entries.get()), name.constData(), 0) != 0)
        return qt_error_string(errno);
    return std::nullopt;
}
