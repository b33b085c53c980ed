// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardtype.h"

using namespace Qt::Literals::StringLiterals;

namespace {

CardType e1() {
    return {u"e1"_s,
            {u"G703"_s, u"JITTER"_s},
            u"3"_s,
            {u"firmware 2.4.1"_s, u"logic 0x31"_s},
            {u"line 120"_s, u"code hdb3"_s, u"clock received"_s},
            {u"LOS"_s, u"AIS"_s, u"LOF"_s, u"RAI"_s, u"CRC"_s, u"BPV"_s, u"SLIP"_s, u"PATT"_s},
            {u"LOS"_s, u"AIS"_s, u"LOF"_s, u"RAI"_s, u"LOMF"_s, u"MRAI"_s}};
}

CardType da() {
    return {u"da"_s,
            {u"V24"_s, u"V35"_s, u"X21"_s},
            u"2"_s,
            {u"firmware 1.9.0"_s},
            {u"adapter v35"_s, u"rate 2048000"_s},
            {u"NOCLK"_s, u"NOSIG"_s, u"PATT"_s, u"CTS"_s},
            {}};
}

CardType otdr() {
    return {u"otdr"_s,
            {u"SM1310"_s, u"SM1550"_s},
            u"5"_s,
            {u"firmware 4.0.3"_s, u"optics 7"_s},
            {u"wavelength 1550"_s, u"range 80000"_s},
            {u"LASER"_s, u"TEMP"_s, u"FIBRE"_s},
            {}};
}

CardType gbe() {
    return {u"gbe"_s,
            {u"1000BASE-T"_s, u"1000BASE-X"_s},
            u"1"_s,
            {u"firmware 3.2.0"_s, u"logic 0x0c"_s},
            {u"port copper"_s, u"negotiation on"_s},
            {u"LINK"_s, u"LOS"_s, u"FCS"_s, u"PAUSE"_s, u"OOS"_s},
            {}};
}

} // namespace

std::optional<CardType> cardType(const QString &name) {
    for (const CardType &type : {e1(), da(), otdr(), gbe()}) {
        if (type.name == name)
            return type;
    }
    return std::nullopt;
}
