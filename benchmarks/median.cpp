// SPDX-License-Identifier: GPL-3.0-or-later
#include "median.h"

#include <algorithm>

double median(QList<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}
