// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// A battery and the line that the kernel writes of it, /proc/apm below the system root of `ZR_SYSROOT`.
class SimulatedBattery {
public:
    enum State { Discharging, Charging, Absent, Unknown };

    /// -1: the charge is unknown.
    SimulatedBattery(State state, int percentage) : currentState(state), currentPercentage(percentage) {}

    /// What the file says now; a full battery when there is none.
    static SimulatedBattery stored();
    /// Writes the file whole. What went wrong, or an empty text.
    QString store() const;

    void setState(State state) { currentState = state; }
    /// One per cent down, or up while it is charged.
    void step();

    QByteArray line() const;

private:
    int apmStatus() const;

    State currentState;
    int currentPercentage;
};
