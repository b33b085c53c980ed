// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Begins a table of docs/performance.md on standard output. Told once by measure-all when it runs several programs.
void printTableHead();

/// One row: the launcher's figure beside the floor's, and whether it is within `limit`, which `aim` tells in words. A
/// row without aim leaves `aim` empty.
void printTableRow(const QString &what, double launcher, double floor, const QString &aim = {},
                   double limit = 0);
