// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPair>
#include <QStringList>
#include <QVariantMap>

/// The LED names in a card's list of alarms: the first word of each line. A line without a word names none.
QStringList ledNamesIn(const QString &alarms);

/// Each indicator with its value as text, in the order of the indicators' keys.
QList<QPair<QString, QString>> ledStatesOf(const QVariantMap &indicators);

/// The lines of a card's reply; empty ones say nothing.
QStringList replyLines(const QString &reply);
