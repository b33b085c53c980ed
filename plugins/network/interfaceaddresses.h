// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QStringList>

/// The addresses of every interface by the interface's name, as the kernel has them now: IPv4, then IPv6.
QHash<QString, QStringList> interfaceAddresses();
