// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostCards = 4;
// With what else lies there, all rows of the list are in sight.
constexpr int mostReports = 3;
constexpr int percent = 100;

constexpr std::array<const char *, Action::kinds> kindNames{
    "insert card", "remove card",   "raise alarm",  "end alarm",      "forget alarms", "show page",
    "open window", "open settings", "open popup",   "change colours", "press key",     "ask for power",
    "set charge",  "refuse export", "export",       "pull asked",     "pull drive",    "fail mount",
    "save report", "read report",   "delete report"};

const QStringList windows{u"Система"_s, u"Сеть"_s, u"Отчёты"_s};
const QStringList popups{u"Звук"_s, u"labelBattery"_s, u"labelInfo"_s};

} // namespace

QString Action::text() const {
    return (QStringList{QString::fromLatin1(kindNames.at(static_cast<std::size_t>(kind)))} + words)
        .join(u' ');
}

Scenario::Scenario(quint32 seed) : firstSeed(seed), random(seed) {}

/// The standard's own distributions differ between libraries; the engine does not.
int Scenario::below(qsizetype bound) {
    return static_cast<int>(random() % static_cast<quint32>(bound));
}

QString Scenario::oneOf(const QStringList &choices) {
    return choices.at(below(choices.size()));
}

Action Scenario::next() {
    while (true) {
        const auto kind = static_cast<Action::Kind>(below(Action::kinds));
        if (isPossible(kind))
            return made(kind);
    }
}

QList<Action> Scenario::everyWindow() {
    QList<Action> actions{
        {Action::OpenSettings, {}}, {Action::AskForPower, {}}, {Action::FailMount, {u"1"_s}}};
    for (const QString &window : windows)
        actions.append({Action::OpenWindow, {window}});
    for (const QString &popup : popups)
        actions.append({Action::OpenPopup, {popup}});
    return actions;
}

QList<Action> Scenario::ending() {
    QList<Action> actions;
    while (!cards.isEmpty())
        actions.append(removeCard(cards.size() - 1));
    while (savedReports > 0)
        actions.append(made(Action::DeleteReport));
    actions.append({Action::ShowPage, {u"0"_s}});
    return actions;
}

int Scenario::pages() const {
    int count = 1;
    for (const Card &card : cards)
        count += card.isDual ? 2 : 1;
    return count;
}

bool Scenario::isPossible(Action::Kind kind) const {
    switch (kind) {
    case Action::InsertCard:
        return cards.size() < mostCards;
    case Action::RemoveCard:
    case Action::RaiseAlarm:
    case Action::EndAlarm:
        return !cards.isEmpty();
    case Action::SaveReport:
        return savedReports < mostReports;
    case Action::ReadReport:
    case Action::DeleteReport:
        return savedReports > 0;
    default:
        return true;
    }
}

Action Scenario::made(Action::Kind kind) {
    static const QStringList partitions{u"sda1"_s, u"sdb1"_s};
    switch (kind) {
    case Action::InsertCard:
        return insertCard();
    case Action::RemoveCard:
        return removeCard(below(cards.size()));
    case Action::RaiseAlarm:
    case Action::EndAlarm: {
        const Card &card = cards.at(below(cards.size()));
        return {kind, {card.name(), alarmOf(card)}};
    }
    case Action::ShowPage:
        return {kind, {QString::number(below(pages()))}};
    case Action::OpenWindow:
        return {kind, {oneOf(windows)}};
    case Action::OpenPopup:
        return {kind, {oneOf(popups)}};
    case Action::PressKey:
        return {kind, {oneOf({u"Home"_s, u"F1"_s, u"F2"_s, u"F3"_s, u"F4"_s})}};
    case Action::SetCharge:
        return {kind, {QString::number(below(percent + 1)), oneOf({u"charging"_s, u"discharging"_s})}};
    case Action::RefuseExport:
    case Action::Export:
    case Action::PullAskedDrive:
    case Action::PullDrive:
        return {kind, {oneOf(partitions)}};
    case Action::FailMount:
        return {kind, {oneOf({u"1"_s, u"32"_s, u"127"_s})}};
    case Action::SaveReport:
        ++savedReports;
        return {kind, {}};
    case Action::ReadReport:
        return {kind, {QString::number(below(savedReports))}};
    case Action::DeleteReport:
        --savedReports;
        return {kind, {}};
    default:
        return {kind, {}};
    }
}

Action Scenario::insertCard() {
    Card card{oneOf({u"e1"_s, u"gbe"_s, u"da"_s, u"otdr"_s}), ++lastSerial, false};
    card.isDual = card.type == "e1"_L1 && below(2) == 0;
    QStringList words{card.type, QString::number(card.serial)};
    if (card.isDual)
        words.append(u"--dual"_s);
    const QString wire = oneOf({QString(), u"--tcp"_s, u"--serial"_s});
    if (!wire.isEmpty())
        words.append(wire);
    cards.append(card);
    return {Action::InsertCard, words};
}

Action Scenario::removeCard(qsizetype index) {
    return {Action::RemoveCard, {cards.takeAt(index).name()}};
}

/// One that the card has in all its modes.
QString Scenario::alarmOf(const Card &card) {
    if (card.type == "e1"_L1)
        return oneOf({u"LOS"_s, u"AIS"_s, u"LOF"_s, u"RAI"_s});
    if (card.type == "gbe"_L1)
        return oneOf({u"LINK"_s, u"LOS"_s, u"FCS"_s});
    return card.type == "da"_L1 ? oneOf({u"NOCLK"_s, u"NOSIG"_s}) : oneOf({u"LASER"_s, u"TEMP"_s});
}
