// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <chrono>
#include <memory>

class CommandChannel;
class ControllerCommand;
class DataProxy;
class MeasProcessor;
class UpdateChannel;

/// The way to one measurement card: commands and their replies on one line, updates of its data streams on another, as
/// docs/protocols.md ("Card lines") lays down. GUI thread only.
///
/// A command waits for its reply, two seconds at most unless the card states another time in its "options", and runs
/// no event loop meanwhile. A card that missed its time costs no more: further commands fail at once until it is heard
/// again or ten seconds have passed.
class CardController : public QObject {
    Q_OBJECT

public:
    /// Opens the card of type `name` with serial number `sn`. `cardiface` is the address of its command line, `poller`
    /// that of its updates: "unix:PATH", "tcp:HOST:PORT" or "serial:DEVICE[:BAUD]". A card that does not answer gets a
    /// controller all the same; null only when memory is out. The caller deletes it, or lets go with freeCard(); a
    /// controller let go of is taken again for the next card of its type, so that a plug-in that outlives the card
    /// may keep its pointer.
    static CardController *newCard(const QString &name, const QString &sn, const QString &cardiface,
                                   const QString &poller);

    /// The controller of an inserted card, for plug-ins that measure with it; null when there is no such card. Of two
    /// with the same identity the one that came first. Keep it in a QPointer: it may be deleted with its card.
    static CardController *card(const QString &name, const QString &sn);
    /// The controllers of all inserted cards of type `name`, in order of insertion.
    static QList<CardController *> cards(const QString &name);

    ~CardController() override;

    QString name() const { return cardName; }
    QString serial() const { return cardSerial; }

    /// Sends one line and returns the reply, its lines separated by line feeds. Empty when the card did not reply in
    /// time or at all; showErrorMessage() follows from the event loop.
    QString doCommand(const QString &command);
    /// The same for a command whose success matters. Returns 1 when the card obeyed, 0 when it refused (its reply begins
    /// with the word "error"), -1 when it did not reply. The reply is kept in `command`.
    int doCommand(ControllerCommand &command);
    /// Sends one line, and when the card obeyed waits up to half a second for its next update. Returns 1 when that came, 0
    /// when it did not or the card refused, -1 when it did not reply.
    int doCommandGetUpdate(const QString &command);

    /// The proxy of stream `name`. `processor`, which the caller keeps, sees every update first; it may be null. The
    /// controller owns the proxy and returns the same one for the same pair.
    DataProxy *dataProxy(const QString &name, MeasProcessor *processor);

    /// Lets go of the card: its lines are closed, nobody hears of its errors any more, its data is forgotten. The
    /// controller stays, with its proxies.
    void freeCard();
    /// Whether it was let go of once: somebody may keep its pointer, so it is to be let go of again, not deleted.
    bool outlivesCards() const { return wasFreed; }

signals:
    /// What went wrong, and with which card and command, in the user's language. The same message is not repeated within
    /// ten seconds.
    void showErrorMessage(QString text, QString detail);

private:
    CardController() = default;

    static CardController *freedController(const QString &name, const QString &sn);

    void takeCard(const QString &name, const QString &sn, const QString &cardiface, const QString &poller);
    int execute(ControllerCommand &command);
    void tellError(const QString &text, const QString &command);
    QList<DataProxy *> proxies() const;

    QString cardName;
    QString cardSerial;
    std::unique_ptr<CommandChannel> commands;
    std::unique_ptr<UpdateChannel> updates;
    bool wasFreed = false;
    QString lastError;
    std::chrono::steady_clock::time_point lastErrorTime;
};
