// SPDX-License-Identifier: GPL-3.0-or-later
#include "measlogid.h"

#include <QPair>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Value>
QHash<QString, Value> operator<<(QHash<QString, Value> hash, const QPair<QString, Value> &entry) {
    hash.insert(entry.first, entry.second);
    return hash;
}

QPair<QString, QString> id(const QString &component, const QString &identifier) {
    return {component, identifier};
}

} // namespace

const MeaslogIDs E1MeaslogID =
    MeaslogIDs() << id(u"base"_s, u"B"_s) << id(u"event"_s, u"E"_s) << id(u"jitter"_s, u"JITTER"_s)
                 << id(u"jittgen"_s, u"JITGEN"_s) << id(u"jtf"_s, u"JTF"_s) << id(u"mtj"_s, u"MTJ"_s)
                 << id(u"jittgen"_s, u"JITGEN"_s) << id(u"sasiview"_s, u"SASI"_s)
                 << id(u"casview"_s, u"CAS"_s) << id(u"tsview"_s, u"TS"_s) << id(u"frameview"_s, u"FRM"_s)
                 << id(u"oscill"_s, u"OSCILL"_s) << id(u"signal"_s, u"SIGNAL"_s)
                 << id(u"vfsignal"_s, u"VFSIGNAL"_s) << id(u"indicators"_s, u"I"_s)
                 << id(u"hdlc"_s, u"HDLC"_s);

const MeaslogIDs DAMeaslogID = MeaslogIDs() << id(u"base"_s, u"B"_s) << id(u"event"_s, u"E"_s)
                                            << id(u"indicators"_s, u"I"_s) << id(u"adapter"_s, u"ADAPTER"_s);

// The waveform itself has no name.
const MeaslogIDs OTDRMeaslogID = MeaslogIDs() << id(QString(), u"WF"_s) << id(u"indicators"_s, u"I"_s)
                                              << id(u"adapter"_s, u"ADAPTER"_s);

const MeaslogIDs GBEMeaslogID = MeaslogIDs() << id(u"rfc2544"_s, u"RFC2544"_s) << id(u"indicators"_s, u"I"_s)
                                             << id(u"adapter"_s, u"ADAPTER"_s);

const QHash<QString, MeaslogIDs> MeaslogID =
    QHash<QString, MeaslogIDs>() << qMakePair(u"e1"_s, E1MeaslogID) << qMakePair(u"da"_s, DAMeaslogID)
                                 << qMakePair(u"otdr"_s, OTDRMeaslogID) << qMakePair(u"gbe"_s, GBEMeaslogID);
