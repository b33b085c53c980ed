// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardinfo.h"
#include "cards/cardreplies.h"

#include <cstdlib>

/// Info files and lists of alarms, as they may come from a service or a card that is out of order.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QList<QByteArray> pieces = bytes.split('\n');
    const std::optional<CardInfo> card = cardInfo(pieces);
    if (card.has_value() != (pieces.size() > 3))
        std::abort();
    if (card && (card->name.contains(QChar(0)) || card->name.size() > pieces[0].size()))
        std::abort();
    for (const QString &name : ledNamesIn(QString::fromUtf8(bytes))) {
        if (name.isEmpty() || name.contains(u' ') || name.contains(u'\n'))
            std::abort();
    }
    return 0;
}
