// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <random>

/// One thing that somebody does with an instrument, and what it is done with.
struct Action {
    enum Kind {
        InsertCard, ///< words of the simulator
        RemoveCard, ///< name
        RaiseAlarm, ///< name, alarm
        EndAlarm,   ///< name, alarm
        ForgetAlarms,
        ShowPage,   ///< number of the page's button
        OpenWindow, ///< text of the icon
        OpenSettings,
        OpenPopup, ///< name or text of what opens it
        ChangeColours,
        PressKey,       ///< the key's name
        AskForPower,    ///< and think better of it
        SetCharge,      ///< percentage, state
        RefuseExport,   ///< partition
        Export,         ///< partition
        PullAskedDrive, ///< while the question is open
        PullDrive,      ///< in the middle of a copy
        FailMount,      ///< exit code
        SaveReport,
        ReadReport, ///< row
        DeleteReport
    };
    static constexpr int kinds = DeleteReport + 1;

    Kind kind;
    QStringList words;

    QString text() const;
    bool operator==(const Action &) const = default;
};

/// An endless sequence of actions, each possible where the ones before it lead. It depends on the seed alone.
class Scenario {
public:
    explicit Scenario(quint32 seed);

    quint32 seed() const { return firstSeed; }
    Action next();
    /// Actions that show every window and pop-up once, possible at any time.
    static QList<Action> everyWindow();
    /// The actions that take away all that was inserted and saved.
    QList<Action> ending();

    /// How many pages the launcher has after the actions so far: one of its own, and those of the cards.
    int pages() const;
    int reports() const { return savedReports; }

private:
    struct Card {
        QString type;
        int serial;
        bool isDual;

        QString name() const { return type + u'-' + QString::number(serial); }
    };

    bool isPossible(Action::Kind kind) const;
    Action made(Action::Kind kind);
    Action insertCard();
    Action removeCard(qsizetype index);
    QString alarmOf(const Card &card);
    int below(qsizetype bound);
    QString oneOf(const QStringList &choices);

    quint32 firstSeed;
    std::mt19937 random;
    QList<Card> cards;
    int lastSerial = 1000;
    int savedReports = 0;
};
