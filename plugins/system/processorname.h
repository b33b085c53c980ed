// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

/// The processor's name that /proc/cpuinfo gives, without marks of trade and clock rates; empty when it gives
/// none, as on 64-bit ARM.
QString processorNameIn(QByteArrayView cpuinfo);
