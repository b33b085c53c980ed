// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "systemstate.h"

#include <QCoreApplication>

/// One fact about the machine as people read it.
struct Fact {
    QString caption;
    QString text;
    std::optional<int> percent;

    bool operator==(const Fact &) const = default;
};

/// Puts the machine's state into words, in the user's language.
class SystemFacts {
    Q_DECLARE_TR_FUNCTIONS(SystemFacts)

public:
    SystemFacts() = delete;

    enum Kind { Launcher, Kernel, Host, Processor, Memory, RootStorage, HomeStorage, Uptime };

    static Fact fact(Kind kind, const SystemState &state);
    /// "3 d 04:05:06".
    static QString timeText(std::chrono::seconds time);

private:
    static QString known(const QString &text);
    static Fact memoryFact(const std::optional<MemoryUse> &memory);
    static Fact storageFact(const QString &caption, const std::optional<Volume> &volume);
};
