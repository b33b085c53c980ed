// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>

/// A bus of the test's own, apart from the session bus.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus() { end(); }

    /// Empty when the bus did not come up.
    QString address() const { return busAddress; }
    void end();

private:
    QProcess daemon;
    QString busAddress;
};
