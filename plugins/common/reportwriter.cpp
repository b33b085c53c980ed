// SPDX-License-Identifier: GPL-3.0-or-later
#include "reportwriter.h"

#include <QDir>
#include <QSaveFile>

#include <cerrno>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A link that leads nowhere takes its name as well.
bool isTaken(const QFileInfo &file) {
    return file.exists() || file.isSymLink();
}

QString freeName(const QDir &directory, const QString &stem) {
    QString name = stem + ".txt"_L1;
    for (int number = 2; isTaken(QFileInfo(directory, name)); ++number)
        name = u"%1-%2.txt"_s.arg(stem).arg(number);
    return name;
}

} // namespace

SavedReport writeReport(const QString &directory, const QString &stem, const QString &text) {
    errno = 0;
    if (!QDir().mkpath(directory))
        return {{}, qt_error_string(errno ? errno : ENOTDIR)};
    const QString name = freeName(QDir(directory), stem);
    QSaveFile file(directory + u'/' + name);
    const QByteArray bytes = text.toUtf8();
    // What is too short to leave the buffer before would fail in commit() without being told.
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
        !file.commit())
        return {{}, file.errorString()};
    return {name, {}};
}
