// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardline.h"
#include "replyreader.h"
#include "timelimit.h"

#include <QObject>

#include <memory>

/// The line on which a card takes commands, one at a time. GUI thread only; send() waits for the reply without
/// running an event loop.
///
/// A card that misses the time limit is left alone: every further command fails at once until the missed reply has
/// come, which is then dropped, or ten seconds have passed. Then the line is opened anew, so that the late reply cannot
/// be taken for another command's; on a serial line, where it could, the card is asked to repeat a number first.
class CommandChannel : public QObject {
    Q_OBJECT

public:
    struct Outcome {
        enum Kind {
            Answered,
            Failed,
            /// Nothing was tried: an earlier command failed, and that was told.
            LeftAlone,
        };

        Kind kind;
        /// The reply, or why there is none.
        QString text;
    };

    /// `address` as cardAddress() reads it.
    explicit CommandChannel(const QString &address, QObject *parent = nullptr);

    Outcome send(const QString &command);
    void setTimeLimit(std::chrono::milliseconds limit) { timeLimit = limit; }
    /// How long a card that missed a time limit is left alone; ten seconds unless set.
    void setLeaveAloneTime(std::chrono::milliseconds time) { leaveAloneTime = time; }
    /// Closes the line and forgets what the card owes.
    void close();

private:
    bool isLeftAlone();
    bool open(QDeadlineTimer deadline);
    bool repeatNumber(QDeadlineTimer deadline);
    bool write(const QString &command, QDeadlineTimer deadline);
    Outcome awaitReply(QDeadlineTimer deadline);
    Outcome missReply(const ReplyReader &begun);
    Outcome fail(const QString &reason);
    void takeWaiting();
    void takeUnasked();

    QString addressText;
    std::unique_ptr<CardLine> line;
    std::chrono::milliseconds timeLimit = usualTimeLimit;
    std::chrono::milliseconds leaveAloneTime{10'000};
    bool isWaiting = false;
    /// What has arrived of a reply that missed its time limit; null when none is owed.
    std::unique_ptr<ReplyReader> owedReply;
    QDeadlineTimer leftAloneUntil{0};
    bool mustRepeatNumber = false;
    qint64 unaskedBytes = 0;
};
