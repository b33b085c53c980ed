// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardreplies.h"

QStringList replyLines(const QString &reply) {
    return reply.split(u'\n', Qt::SkipEmptyParts);
}

QStringList ledNamesIn(const QString &alarms) {
    QStringList names;
    for (const QString &line : replyLines(alarms)) {
        const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
        if (!words.isEmpty())
            names.append(words.first());
    }
    return names;
}

QList<QPair<QString, QString>> ledStatesOf(const QVariantMap &indicators) {
    QList<QPair<QString, QString>> states;
    for (auto indicator = indicators.cbegin(); indicator != indicators.cend(); ++indicator)
        states.append({indicator.key(), indicator.value().toString()});
    return states;
}
