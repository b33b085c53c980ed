// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>

/// From a measurement component of a card type to its identifier in measurement logs.
using MeaslogIDs = QHash<QString, QString>;

extern const MeaslogIDs E1MeaslogID;
extern const MeaslogIDs DAMeaslogID;
extern const MeaslogIDs OTDRMeaslogID;
extern const MeaslogIDs GBEMeaslogID;

/// The card types that the instrument knows, and what each of them can measure. Built before main() and never changed;
/// any thread may read it.
extern const QHash<QString, MeaslogIDs> MeaslogID;
