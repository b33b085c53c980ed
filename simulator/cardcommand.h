// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Carries out "zr-simulator card WORDS" and returns the exit status. `insert` returns as soon as the card is announced; a
/// process of its own goes on being the card until it is removed or the session bus ends.
int runCardCommand(const QStringList &words, int argc, char *argv[]);

/// How it is used, for people.
QString cardCommandHelp();
