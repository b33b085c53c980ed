// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

/// Of at least one value.
double median(QList<double> values);
