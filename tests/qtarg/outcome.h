// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

class QtArgCmdLine;

/// The message of what parse() throws, "help printed", "version printed", or "run" when it returns.
QString outcomeOf(QtArgCmdLine &parser);

/// The words of `line`, cut at blanks, behind a program's name.
QStringList wordsOf(const QString &line);
