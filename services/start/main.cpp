// SPDX-License-Identifier: GPL-3.0-or-later
//
// Starts the launcher:  zr-start [--longest-pause SECONDS] /path/to/zr-launcher [argument...]
#include "launcherrun.h"
#include "launcherstart.h"

#include <QCoreApplication>
#include <QDir>

#include <chrono>
#include <cstdio>
#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int wrongUse = 2;

struct Orders {
    std::chrono::seconds longestPause = 60s;
    QStringList launcher;
};

QStringList wordsOf(int argc, char *argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

/// Nothing when the words are wrong. What stands behind the launcher is the launcher's own.
std::optional<Orders> ordersIn(QStringList words) {
    Orders orders;
    if (words.size() > 1 && words.first() == "--longest-pause"_L1) {
        bool isNumber = false;
        orders.longestPause = std::chrono::seconds(words.at(1).toUInt(&isNumber));
        if (!isNumber)
            return std::nullopt;
        words.remove(0, 2);
    }
    if (words.isEmpty())
        return std::nullopt;
    orders.launcher = words;
    return orders;
}

/// Below the user's run-time directory, which is empty after each start of the machine. Empty when there is none.
QString makeRunDirectory() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    QString directory = runtime + "/zr-launcher"_L1;
    if (!runtime.isEmpty() && QDir().mkpath(directory))
        return directory;
    std::fputs("There is no run-time directory (XDG_RUNTIME_DIR): failures are not remembered.\n", stderr);
    return {};
}

} // namespace

int main(int argc, char *argv[]) {
    LauncherRun::holdSignals();
    const QCoreApplication application(argc, argv);
    const std::optional<Orders> orders = ordersIn(wordsOf(argc, argv));
    if (!orders) {
        std::fputs("usage: zr-start [--longest-pause SECONDS] LAUNCHER [ARGUMENT...]\n"
                   "  A start that comes after failed runs waits 1, 2, 4, 8 ... seconds, not longer than "
                   "that (60).\n",
                   stderr);
        return wrongUse;
    }
    return LauncherStart(orders->launcher.first(), orders->launcher.mid(1), makeRunDirectory(),
                         orders->longestPause)
        .run();
}
