// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cards/simulatedcard.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <map>

/// What the launcher has to show of the cards: its own page and theirs, one for each mode, and the lamps of the page that is
/// shown. Pages are counted from 0, which is the launcher's own, in the order of their buttons.
class CardPages {
public:
    /// In the words of the simulator. The card's last page is shown then.
    void insert(const QStringList &words);
    /// Where its page is shown it is not known which one comes next.
    void remove(const QString &card);
    void show(int page);
    void setAlarm(const QString &card, const QString &alarm, bool isPresent);
    /// Those that are past, of the card whose page is shown.
    void forgetAlarms();

    int count() const { return static_cast<int>(pages.size()); }
    /// -1 when it is not known.
    int shown() const { return shownPage; }
    /// Names in the order of the card, each followed by a colon and the number of its quality.
    QStringList lamps() const;
    /// The first one with an alarm that has gone and is not forgotten, -1 when there is none.
    int pageWithPastAlarm() const;

private:
    struct Page {
        /// Empty for the launcher's own.
        QString card;
        SimulatedCard::Mode mode;
    };

    bool hasPastAlarm(const Page &page) const;

    std::map<QString, SimulatedCard> cards;
    QList<Page> pages{{QString(), SimulatedCard::Pcm}};
    int shownPage = 0;
};
