// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

/// The first `mostBytes` of a file; empty when it cannot be read. Files of the kernel have no size to ask for,
/// so this reads until the end or the bound.
QByteArray boundedRead(const QString &file, qint64 mostBytes);
