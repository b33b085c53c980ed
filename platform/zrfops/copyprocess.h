// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "copycommands.h"
#include "linesplitter.h"

#include <QProcess>

/// A program that works on the drive, in a process group of its own that also ends when we do.
///
/// What it says on its standard error goes to ours, and its first line is kept. A flood of messages, one for each of 50,000
/// files, is cut.
class CopyProcess : public QProcess {
    Q_OBJECT

public:
    explicit CopyProcess(const CopyCommands::Command &command);

    /// Lines of standard output that have come since the last call, the last one perhaps without its end.
    QList<QByteArray> takeLines();
    QString firstMessage() const { return message; }

    /// Asks the whole group to end, and kills it if it has not after two seconds. Nothing is waited for; the object
    /// deletes itself when the program is gone.
    void abandon();
    /// The same, but waits for it. False when it is still there: deleting the object would wait for half a minute.
    bool endAndWait();

private slots:
    void passMessagesOn();

private:
    void tellHowManyWereCut();
    void signalGroup(int signal) const;

    LineSplitter outputLines;
    LineSplitter messageLines;
    QString message;
    int messageCount = 0;
};
