// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantList>

/// Sends a signal from path "/" on the session bus and returns when it has left. An error text, or nothing.
QString sendBusSignal(const QString &interface, const QString &name, const QVariantList &arguments);
