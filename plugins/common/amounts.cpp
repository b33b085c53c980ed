// SPDX-License-Identifier: GPL-3.0-or-later
#include "amounts.h"

#include <QLocale>

#include <limits>

QString Amounts::bytes(quint64 count) {
    // The name of the unit would have to follow the number's grammar.
    if (count < 1000)
        return tr("%1 B").arg(count);
    constexpr auto most = static_cast<quint64>(std::numeric_limits<qint64>::max());
    return QLocale().formattedDataSize(static_cast<qint64>(qMin(count, most)), 1, QLocale::DataSizeSIFormat);
}

QString Amounts::usedOf(quint64 used, quint64 total) {
    return tr("%1 of %2 used").arg(bytes(used), bytes(total));
}

QString Amounts::bitRate(quint64 bitsPerSecond) {
    const QString units[] = {tr("%1 bit/s"), tr("%1 kbit/s"), tr("%1 Mbit/s"), tr("%1 Gbit/s")};
    auto amount = static_cast<double>(bitsPerSecond);
    size_t unit = 0;
    // What would be rounded to four digits belongs to the next unit.
    while (amount >= 999.95 && unit + 1 < std::size(units)) {
        amount /= 1000;
        ++unit;
    }
    const bool isWhole = unit == 0 || amount >= 100 || amount == static_cast<double>(qRound64(amount));
    return units[unit].arg(QLocale().toString(amount, 'f', isWhole ? 0 : 1));
}

int Amounts::percentOf(quint64 part, quint64 total) {
    if (total == 0)
        return 0;
    return qRound(100.0 * static_cast<double>(qMin(part, total)) / static_cast<double>(total));
}
