// SPDX-License-Identifier: GPL-3.0-or-later
#include "systemfacts.h"

#include <amounts.h>

#include <QTime>

using namespace Qt::Literals::StringLiterals;

Fact SystemFacts::fact(Kind kind, const SystemState &state) {
    switch (kind) {
    case Launcher:
        return {tr("Version"), known(state.launcher), {}};
    case Kernel:
        return {tr("Kernel"), known(state.kernel), {}};
    case Host:
        return {tr("Host name"), known(state.host), {}};
    case Processor:
        return {tr("Processor"), known(state.processor), state.load};
    case Memory:
        return memoryFact(state.memory);
    case RootStorage:
        return storageFact(tr("Storage"), state.root);
    case HomeStorage:
        return storageFact(tr("Home storage"), state.home);
    case Uptime:
        return {tr("Uptime"), state.uptime ? timeText(*state.uptime) : tr("Unknown"), {}};
    }
    return {};
}

QString SystemFacts::timeText(std::chrono::seconds time) {
    constexpr qint64 day = 86400;
    const qint64 days = time.count() / day;
    const QTime clock = QTime(0, 0).addSecs(static_cast<int>(time.count() % day));
    const QString text = clock.toString(u"HH:mm:ss"_s);
    return days > 0 ? tr("%1 d %2").arg(days).arg(text) : text;
}

QString SystemFacts::known(const QString &text) {
    return text.isEmpty() ? tr("Unknown") : text;
}

Fact SystemFacts::memoryFact(const std::optional<MemoryUse> &memory) {
    if (!memory)
        return {tr("Memory"), tr("Unknown"), {}};
    return {tr("Memory"), Amounts::usedOf(memory->used, memory->total),
            Amounts::percentOf(memory->used, memory->total)};
}

Fact SystemFacts::storageFact(const QString &caption, const std::optional<Volume> &volume) {
    if (!volume)
        return {caption, tr("Unknown"), {}};
    return {caption, Amounts::usedOf(volume->used, volume->total),
            Amounts::percentOf(volume->used, volume->total)};
}
