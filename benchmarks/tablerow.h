// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Rows of the table that benchmarks/measure-all begins, on standard output.

/// The launcher's figure beside the floor's, and whether it is within `limit`, which `aim` tells in words. A row without
/// aim leaves `aim` empty. What is compared with something else than the floor program says so in `what`.
void printTableRow(const QString &what, double launcher, double floor, const QString &aim = {},
                   double limit = 0);

/// A figure that is compared with nothing.
void printTableRowWithoutFloor(const QString &what, double launcher);
