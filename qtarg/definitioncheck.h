// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QList>

class QtArgIface;

/// Throws the exception for the first mistake in the options' definitions, in order of addition.
void checkDefinitions(const QList<QtArgIface *> &options, QChar delimiter);
