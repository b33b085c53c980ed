// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/cardtype.h"

#include <QByteArray>
#include <QMap>

/// How a card behaves inside: its mode, its alarms, and what it answers. Knows nothing of lines.
class SimulatedCard {
public:
    enum Mode { Pcm, Signalling };
    enum AlarmState { None, WasPresent, Present };

    /// A dual-mode card can switch to signalling analysis.
    SimulatedCard(const CardType &type, bool isDualMode);

    /// The reply to a command, its lines separated by line feeds. An unknown command is refused.
    QString reply(const QString &command);

    /// False when there is no such alarm in this mode. An alarm that goes stays as "was present" until a reset.
    bool setAlarm(const QString &name, bool isPresent);
    void resetAlarms();
    /// False when the card has only one mode.
    bool setMode(Mode mode);

    QStringList alarmNames() const;
    AlarmState alarmState(const QString &alarm) const { return alarms.value(alarm); }
    /// The states of all alarms as one line of the update stream, without its line end.
    QByteArray update() const;

    /// Every command so far, in order.
    QStringList commands() const { return receivedCommands; }

private:
    QString alarmList() const;
    QString switchTo(const QString &mode);

    CardType type;
    bool isDualMode;
    Mode mode = Pcm;
    QMap<QString, AlarmState> alarms;
    QStringList receivedCommands;
};
