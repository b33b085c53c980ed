// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// One row of the table that benchmarks/measure-all begins, on standard output: the launcher's figure beside the floor's, and whether it is within `limit`, which `aim` tells in words. A
/// row without aim leaves `aim` empty.
void printTableRow(const QString &what, double launcher, double floor, const QString &aim = {},
                   double limit = 0);
