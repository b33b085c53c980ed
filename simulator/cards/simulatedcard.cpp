// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/simulatedcard.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString refusal = u"error unknown command"_s;

QString textOf(SimulatedCard::AlarmState state) {
    switch (state) {
    case SimulatedCard::Present:
        return u"present"_s;
    case SimulatedCard::WasPresent:
        return u"history"_s;
    case SimulatedCard::None:
        break;
    }
    return u"none"_s;
}

} // namespace

SimulatedCard::SimulatedCard(const CardType &cardType, bool dualMode)
    : type(cardType), isDualMode(dualMode) {}

QString SimulatedCard::reply(const QString &command) {
    receivedCommands.append(command);
    if (command == "options"_L1)
        return (isDualMode ? type.options + QStringList{u"ZR-SIG1"_s} : type.options).join(u'\n');
    if (command == "hwrevision"_L1)
        return type.hardwareRevision;
    if (command == "versions"_L1)
        return type.versions.join(u'\n');
    if (command == "parameters"_L1)
        return type.parameters.join(u'\n');
    if (command == "operation"_L1)
        return mode == Pcm ? u"pcm"_s : u"sa"_s;
    if (command.startsWith("operation "_L1))
        return switchTo(command.section(u' ', 1));
    if (command == "status alarms"_L1)
        return alarmList();
    if (command == "status alarms reset"_L1) {
        resetAlarms();
        return {};
    }
    if (command.startsWith("repeat "_L1))
        return command.section(u' ', 1);
    return refusal;
}

QString SimulatedCard::switchTo(const QString &modeName) {
    if (modeName != "pcm"_L1 && modeName != "sa"_L1)
        return u"error unknown mode"_s;
    return setMode(modeName == "pcm"_L1 ? Pcm : Signalling) ? QString() : u"error no second mode"_s;
}

bool SimulatedCard::setMode(Mode newMode) {
    if (!isDualMode)
        return newMode == Pcm;
    mode = newMode;
    return true;
}

QStringList SimulatedCard::alarmNames() const {
    return mode == Pcm ? type.alarms : type.signallingAlarms;
}

QString SimulatedCard::alarmList() const {
    QStringList lines;
    for (const QString &name : alarmNames())
        lines.append(name + u' ' + textOf(alarms.value(name)));
    return lines.join(u'\n');
}

bool SimulatedCard::setAlarm(const QString &name, bool isPresent) {
    if (!alarmNames().contains(name))
        return false;
    AlarmState &state = alarms[name];
    if (isPresent)
        state = Present;
    else if (state == Present)
        state = WasPresent;
    return true;
}

void SimulatedCard::resetAlarms() {
    for (AlarmState &state : alarms) {
        if (state == WasPresent)
            state = None;
    }
}

QByteArray SimulatedCard::update() const {
    QJsonObject indicators;
    for (const QString &name : alarmNames())
        indicators.insert(name, textOf(alarms.value(name)));
    return QJsonDocument(QJsonObject{{u"indicators"_s, indicators}}).toJson(QJsonDocument::Compact);
}
