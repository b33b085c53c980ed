// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Carries out "zr-simulator battery WORDS" and returns the exit status.
int runBatteryCommand(const QStringList &words, int argc, char *argv[]);

/// How it is used, for people.
QString batteryCommandHelp();
