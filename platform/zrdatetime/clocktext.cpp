// SPDX-License-Identifier: GPL-3.0-or-later
#include "clocktext.h"

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

QString clockTime(const QDateTime &moment) {
    return moment.toString(u"hh:mm"_s);
}

QString clockDate(const QDateTime &moment) {
    return moment.toString(u"dd.MM.yyyy"_s);
}

std::chrono::milliseconds untilNextMinute(const QDateTime &moment) {
    const QTime time = moment.time();
    return 1min - std::chrono::seconds(time.second()) - std::chrono::milliseconds(time.msec());
}
