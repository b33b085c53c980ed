// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardannouncement.h"
#include "cards/cardport.h"
#include "cards/simulatedcard.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>
#include <random>

/// What is to be simulated.
struct CardOrder {
    enum Wire { Unix, Tcp, Serial };

    CardType type;
    int serial = 0;
    bool isDualMode = false;
    Wire wire = Unix;

    QString cardName() const;
};

/// A simulated card on its two lines, with all the ways in which a real one can misbehave.
class CardProcess : public QObject {
    Q_OBJECT

public:
    explicit CardProcess(const CardOrder &order);

    /// Listens and announces the card. What went wrong, or an empty text.
    QString insert();
    /// Announces that the card goes, and hangs up.
    void remove();

    SimulatedCard &card() { return simulated; }

    /// Sends the states of the alarms to whoever listens.
    void sendUpdate();

    /// Keeps commands without answering them, and sends no updates.
    void hang();
    /// Answers what was kept, however late.
    void resume();
    void shutLines();
    bool openLines();
    /// Sends noise on both lines until babble(false).
    void babble(bool on);
    /// Sends that many updates a second; 0 ends it.
    void storm(int updatesPerSecond);
    /// Lets a random alarm come or go now and then.
    void live(bool on);
    /// How replies are sent: whole, or in single bytes, or cut off in the middle, or without any end.
    enum ReplyManner { Whole, SingleBytes, CutOff, Endless };
    void setReplyManner(ReplyManner manner) { replyManner = manner; }

private:
    static std::unique_ptr<CardPort> makePort(CardOrder::Wire wire, const QString &socketPath);

    void takeBytes(const QByteArray &bytes);
    void answer(const QString &command);
    void sendReply(const QByteArray &reply);
    void sendNoise();
    void changeRandomAlarm();

    CardOrder order;
    SimulatedCard simulated;
    std::unique_ptr<CardPort> commandPort;
    std::unique_ptr<CardPort> updatePort;
    std::optional<CardAnnouncement> announcement;
    QByteArray unfinishedCommand;
    QStringList keptCommands;
    bool hangs = false;
    ReplyManner replyManner = Whole;
    QTimer babbling;
    QTimer storming;
    QTimer living;
    std::mt19937 random;
};
