// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "power/apminfo.h"

#include <QThread>
#include <QTimer>

#include <mutex>

/// Polls /proc/apm every two seconds and tells what has changed.
///
/// The thread only says when to begin: timer, file and signal belong to the thread that made the object, which has to be
/// the GUI thread. What cannot be read is passed over in silence; polling goes on.
class ApmReaderThread : public QThread {
    Q_OBJECT

public:
    explicit ApmReaderThread(QObject *parent = nullptr);
    /// Ends the thread and waits for it.
    ~ApmReaderThread() override;

signals:
    /// A line that differs from the one before. Always a direct call.
    void newApmData(ApmInfo apmData);

public slots:
    /// One poll.
    void parseApmInfo();

protected:
    void run() override;

private:
    void readLine();

    QTimer pollTimer;
    QString lastLine;
    /// The thread holds it while it runs.
    std::mutex running;
};
