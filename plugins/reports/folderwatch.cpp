// SPDX-License-Identifier: GPL-3.0-or-later
#include "folderwatch.h"

#include <QFileInfo>

using namespace std::chrono_literals;

FolderWatch::FolderWatch(QObject *parent) : QObject(parent) {
    burstTimer.setSingleShot(true);
    burstTimer.setInterval(200ms);
    connect(&burstTimer, &QTimer::timeout, this, &FolderWatch::changed);
}

void FolderWatch::start(const QString &directory) {
    watchedDirectory = directory;
    watcher = std::make_unique<QFileSystemWatcher>();
    connect(watcher.get(), &QFileSystemWatcher::directoryChanged, this, &FolderWatch::directoryChanged);
    watchNearest();
}

void FolderWatch::stop() {
    burstTimer.stop();
    watcher.reset();
}

void FolderWatch::directoryChanged() {
    watchNearest();
    if (!burstTimer.isActive())
        burstTimer.start();
}

void FolderWatch::watchNearest() {
    QString nearest = nearestDirectory();
    while (watcher->directories() != QStringList(nearest)) {
        if (const QStringList others = watcher->directories(); !others.isEmpty())
            watcher->removePaths(others);
        if (!watcher->addPath(nearest))
            return;
        // It may have come or gone before it was watched.
        nearest = nearestDirectory();
    }
}

QString FolderWatch::nearestDirectory() const {
    QString directory = watchedDirectory;
    while (!QFileInfo(directory).isDir() && directory != QFileInfo(directory).path())
        directory = QFileInfo(directory).path();
    return directory;
}
