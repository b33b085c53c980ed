// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What a card of one type says of itself.
struct CardType {
    QString name;
    QStringList options;
    QString hardwareRevision;
    QStringList versions;
    QStringList parameters;
    /// Names of the alarms, by operating mode: "pcm" is the only one of a card that has no second.
    QStringList alarms;
    QStringList signallingAlarms;
};

/// The card type of that name; nothing for a name that no card has.
std::optional<CardType> cardType(const QString &name);
