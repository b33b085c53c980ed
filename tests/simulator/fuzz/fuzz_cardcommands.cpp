// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/cardtype.h"
#include "cards/simulatedcard.h"

#include <cstdlib>

/// The commands that programs send to a simulated card, one a line. It answers all of them, and what it then tells of its
/// alarms is one line with a value for each alarm of its mode.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    SimulatedCard card(*cardType(QStringLiteral("e1")), size % 2 == 0);
    const QStringList commands = text.split(u'\n');
    for (const QString &command : commands)
        card.reply(command);
    if (card.commands() != commands || card.update().contains('\n'))
        std::abort();
    for (const QString &alarm : card.alarmNames()) {
        if (!card.update().contains('"' + alarm.toUtf8() + '"'))
            std::abort();
    }
    return 0;
}
