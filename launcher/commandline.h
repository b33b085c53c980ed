// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

#include <optional>

/// The words of a command line that are the launcher's own: without those that the toolkit takes for itself
/// ("-platform NAME", "-style=NAME", "-reverse"; QGuiApplication and QApplication manuals).
QStringList launcherArguments(const QStringList &arguments);

/// Answers the command line; `arguments` starts with the program's name. Nothing means that the launcher is to
/// run, otherwise the exit status. Needs neither an application object nor a display.
std::optional<int> answerCommandLine(const QStringList &arguments);
