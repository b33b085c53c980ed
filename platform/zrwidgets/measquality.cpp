// SPDX-License-Identifier: GPL-3.0-or-later
#include "measquality.h"

#include <QHash>

using namespace Qt::Literals::StringLiterals;

MeasQuality qualityFromState(const QString &state) {
    static const QHash<QString, MeasQuality> qualities{
        {u"none"_s, Good},       {u"ok"_s, Good},
        {u"off"_s, Good},        {u"0"_s, Good},
        {u"present"_s, Bad},     {u"alarm"_s, Bad},
        {u"on"_s, Bad},          {u"1"_s, Bad},
        {u"history"_s, Warning}, {u"was present"_s, Warning},
        {u"2"_s, Warning},
    };
    constexpr qsizetype longestState = 16;
    return state.size() > longestState ? NotMeasured
                                       : qualities.value(state.trimmed().toLower(), NotMeasured);
}
