// SPDX-License-Identifier: GPL-3.0-or-later
#include "filesbelow.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

void writeFiles(const QString &directory, const FilesBelow &files) {
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        QFile target(directory + u'/' + QFile::decodeName(file.key()));
        QDir().mkpath(QFileInfo(target).path());
        if (!target.open(QIODevice::WriteOnly) || target.write(file.value()) != file.value().size())
            qFatal("cannot write %s", qPrintable(target.fileName()));
    }
}

FilesBelow readFiles(const QString &directory) {
    FilesBelow files;
    QDirIterator entries(directory, QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        QFile file(entries.next());
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(file.fileName()));
        files[QFile::encodeName(QDir(directory).relativeFilePath(file.fileName()))] = file.readAll();
    }
    return files;
}

FilesBelow oddlyNamedFiles() {
    return {
        {"plain.txt", "one\n"},
        {"empty", QByteArray()},
        {"with blanks and 100 % %1 %2.txt", "two"},
        {"line\nfeed", "three"},
        {"\xd0\xbe\xd1\x82\xd1\x87\xd1\x91\xd1\x82 1.txt", "four"},
        {QByteArray(255, 'n'), "five"},
        {"-rf", "six"},
        {"--delete", "seven"},
        {"*?[a]\\", "eight"},
        {"deep/below/.hidden", QByteArray(300000, '\xa5')},
        {"deep/host:file", "nine"},
    };
}
