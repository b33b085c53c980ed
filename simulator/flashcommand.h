// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

/// Runs `zr-simulator flash WORDS...`. The exit status.
int runFlashCommand(const QStringList &words, int argc, char *argv[]);
QString flashCommandHelp();
