// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Whether somebody takes the call at a D-Bus address and then says nothing, for a second. Buses behind other sockets than
/// those of the Unix domain count as answering.
///
/// Qt's own call would wait for half a minute, and with it all its connections to whatever bus.
bool isSilentBus(const QString &address);
