// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <memory>

/// Tells when files of a directory come, go or are replaced, also when the directory itself does. A burst of
/// changes is told once, at its end.
class FolderWatch : public QObject {
    Q_OBJECT

public:
    explicit FolderWatch(QObject *parent = nullptr);

    void start(const QString &directory);
    void stop();
    bool isRunning() const { return watcher != nullptr; }

signals:
    void changed();

private:
    void directoryChanged();
    void watchNearest();
    QString nearestDirectory() const;

    QString watchedDirectory;
    std::unique_ptr<QFileSystemWatcher> watcher;
    QTimer burstTimer;
};
