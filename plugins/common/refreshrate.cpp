// SPDX-License-Identifier: GPL-3.0-or-later
#include "refreshrate.h"

#include <zrconfig.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

ZrConfig stored() {
    return {u"zr-launcher"_s, u"system"_s, u"refresh"_s};
}

} // namespace

QList<std::chrono::seconds> RefreshRate::choices() {
    return {1s, 2s, 5s};
}

std::chrono::seconds RefreshRate::configured() {
    const std::chrono::seconds interval(stored().string().toInt());
    return choices().contains(interval) ? interval : choices().first();
}

void RefreshRate::store(std::chrono::seconds interval) {
    stored() = QString::number(interval.count());
}
