// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Where the simulated cards of this instrument keep their files: the info directory of the card service, below the system
/// root of `ZR_SYSROOT` when that is set.
namespace CardPlace {

/// Made when it is missing.
QString directory();

/// Names of the cards that are inserted, in order: type, hyphen, serial number.
QStringList cards();

QString infoFile(const QString &card);
/// The socket on which a card's process takes orders from a shell.
QString controlSocket(const QString &card);
QString commandSocket(const QString &card);
QString updateSocket(const QString &card);

} // namespace CardPlace
