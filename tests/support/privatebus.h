// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <sys/types.h>

/// A bus of the test's own, apart from the session bus.
class PrivateBus {
public:
    /// At a socket of that name, or at an address of the bus's choice.
    explicit PrivateBus(const QString &socket = QString());
    ~PrivateBus() { end(); }
    PrivateBus(const PrivateBus &) = delete;
    PrivateBus &operator=(const PrivateBus &) = delete;

    /// Empty when the bus did not come up.
    QString address() const { return busAddress; }
    void end();
    /// Ends it as the kernel does, which leaves the socket behind.
    void kill();
    /// Takes calls and says nothing, until resume().
    void suspend();
    void resume();
    /// Begins anew at the same address.
    bool restart();

private:
    bool start(const QString &address);

    void send(int signal) const;
    void waitUntilEnded();

    /// 0 when none runs.
    pid_t daemon = 0;
    QString busAddress;
};
