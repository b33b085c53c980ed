// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

#include <chrono>
#include <functional>

class QProcess;

/// Runs zr-mount-flash as root, beside the event loop. One run a partition at a time: ask isBusy() first.
class MountHelper : public QObject {
    Q_OBJECT

public:
    explicit MountHelper(std::chrono::milliseconds mountLimit, QObject *parent = nullptr);

    bool isBusy(const QString &partition) const { return busyPartitions.contains(partition); }
    /// Whether no more partitions should be begun with for now.
    bool isLoaded() const;

    void mount(const QString &partition);
    void unmount(const QString &partition);

signals:
    /// The mount goes on: mountEnded() follows, if ever.
    void mountTimedOut(const QString &partition);
    /// `exitCode` is that of mount(8).
    void mountEnded(const QString &partition, int exitCode);
    void unmountEnded(const QString &partition);

private:
    /// A run that is yet to be started, and deletes itself when it has ended.
    QProcess *newRun(const QString &verb, const QString &partition,
                     const std::function<void(int exitCode)> &ended);

    std::chrono::milliseconds limit;
    QSet<QString> busyPartitions;
};
