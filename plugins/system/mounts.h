// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>

/// One line of /proc/mounts.
struct Mount {
    QString device;
    QString directory;
    QString type;
};

/// The local file systems with storage behind them, each once, in the order of mounting; "/" in any case.
///
/// The kernel's own trees have no storage. File systems of the network are left out: one whose server is silent
/// would hold whoever asks how full it is.
QList<Mount> localMountsIn(QByteArrayView mounts);
