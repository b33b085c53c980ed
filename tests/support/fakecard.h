// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QTemporaryDir>

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

/// The card's end of both lines, driven by hand from a test. It lives in a thread of its own, since the controller waits for
/// replies in the test's. That one knows nothing of Qt's event loop, by which the thread sanitizer would not see the two
/// hand each other anything.
class FakeCard {
public:
    enum Wire { Unix, Tcp, Serial };

    explicit FakeCard(Wire wire = Unix);
    ~FakeCard();

    QString cardiface() const { return commandLine.address; }
    QString poller() const { return updateLine.address; }

    /// The reply to `command`, without the closing line; an unknown command gets an empty reply.
    void setReply(const QByteArray &command, const QByteArray &lines);
    /// The bytes to be sent for `command`, as they are.
    void setRawReply(const QByteArray &command, const QByteArray &bytes);
    /// Sends `bytes` on the update line after each reply to `command`.
    void setUpdateAfter(const QByteArray &command, const QByteArray &bytes);
    /// Answers each empty line on the update line with these bytes.
    void setUpdateOnRequest(const QByteArray &bytes);
    /// Sends every reply in single bytes.
    void setSingleBytes(bool on);
    /// Hangs up after the next reply.
    void hangUpAfterReply();
    /// Keeps the replies back until release(), which sends them.
    void hold();
    void release();
    /// Sends bytes that nobody asked for.
    void sendUnasked(const QByteArray &bytes);
    void sendUpdate(const QByteArray &bytes);
    void closeUpdates();
    /// Hangs up both lines and takes no more calls.
    void close();

    /// What has arrived on the command line so far.
    QList<QByteArray> commands() const;
    void forgetCommands();
    /// How often somebody called on the command line.
    int calls() const;

private:
    struct Line {
        QString address;
        int listener = -1;
        int peer = -1;
        int otherEnd = -1;
        QByteArray received;
    };

    void listen(Line &line, const QString &name);
    void openPty(Line &line);
    void serve();
    void doWork();
    void serve(Line &line);
    void accept(Line &line);
    void read(Line &line);
    void take(const QByteArray &command);
    void send(const QByteArray &bytes);
    void sendOn(Line &line, const QByteArray &bytes);
    /// Has it done by the card's thread, and waits.
    void inThread(const std::function<void()> &work) const;
    void inThreadLater(std::function<void()> work) const;

    Wire wire;
    QTemporaryDir directory;
    Line commandLine;
    Line updateLine;
    QHash<QByteArray, QByteArray> replies;
    QHash<QByteArray, QByteArray> updatesAfter;
    QByteArray updateOnRequest;
    QList<QByteArray> receivedCommands;
    QList<QByteArray> heldReplies;
    bool holds = false;
    bool sendsSingleBytes = false;
    bool hangsUp = false;
    int callCount = 0;
    bool ends = false;

    mutable std::mutex mutex;
    mutable std::vector<std::function<void()>> waitingWork;
    /// Readable when work waits.
    int workSignal;
    std::thread thread;
};
