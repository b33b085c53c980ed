// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardpages.h"

#include <measquality.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

MeasQuality qualityOf(SimulatedCard::AlarmState state) {
    switch (state) {
    case SimulatedCard::Present:
        return Bad;
    case SimulatedCard::WasPresent:
        return Warning;
    case SimulatedCard::None:
        break;
    }
    return Good;
}

} // namespace

void CardPages::insert(const QStringList &words) {
    const QString name = words.at(0) + u'-' + words.at(1);
    const bool isDual = words.contains("--dual"_L1);
    cards.try_emplace(name, cardType(words.at(0)).value(), isDual);
    if (isDual)
        pages.append({name, SimulatedCard::Signalling});
    pages.append({name, SimulatedCard::Pcm});
    show(count() - 1);
}

void CardPages::remove(const QString &card) {
    for (int page = count() - 1; page > 0; --page) {
        if (pages.at(page).card != card)
            continue;
        pages.removeAt(page);
        if (page == shownPage)
            shownPage = -1;
        else if (page < shownPage)
            --shownPage;
    }
    cards.erase(card);
}

void CardPages::show(int page) {
    shownPage = page;
    if (const auto card = cards.find(pages.at(page).card); card != cards.end())
        card->second.setMode(pages.at(page).mode);
}

void CardPages::setAlarm(const QString &card, const QString &alarm, bool isPresent) {
    cards.at(card).setAlarm(alarm, isPresent);
}

void CardPages::forgetAlarms() {
    if (const auto card = cards.find(pages.at(shownPage).card); card != cards.end())
        card->second.resetAlarms();
}

QStringList CardPages::lamps() const {
    const auto card = cards.find(pages.at(shownPage).card);
    if (card == cards.end())
        return {};
    QStringList lamps;
    for (const QString &alarm : card->second.alarmNames())
        lamps.append(alarm + u':' + QString::number(qualityOf(card->second.alarmState(alarm))));
    return lamps;
}

int CardPages::pageWithPastAlarm() const {
    const auto page = std::find_if(pages.cbegin(), pages.cend(),
                                   [this](const Page &candidate) { return hasPastAlarm(candidate); });
    return page == pages.cend() ? -1 : static_cast<int>(page - pages.cbegin());
}

bool CardPages::hasPastAlarm(const Page &page) const {
    const auto card = cards.find(page.card);
    if (card == cards.end())
        return false;
    const QStringList alarms = card->second.alarmNames();
    return std::any_of(alarms.cbegin(), alarms.cend(), [&](const QString &alarm) {
        return card->second.alarmState(alarm) == SimulatedCard::WasPresent;
    });
}
