// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// A command with its outcome, for callers that need to know whether the card obeyed.
class ControllerCommand {
public:
    /// `text` is one line. With `isQuiet` a failure is the caller's to tell: the controller shows no message.
    ControllerCommand(const QString &text, bool isQuiet);

    QString text() const { return commandText; }
    bool isQuiet() const { return quiet; }
    /// What the card replied to the last CardController::doCommand(); empty when it did not.
    QString reply() const { return replyText; }
    void setReply(const QString &reply) { replyText = reply; }

private:
    QString commandText;
    QString replyText;
    bool quiet;
};
