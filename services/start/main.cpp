// SPDX-License-Identifier: GPL-3.0-or-later
//
// Starts the launcher:  zr-start /path/to/zr-launcher [argument...]
#include "launcherrun.h"
#include "launcherstart.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int wrongUse = 2;

QStringList wordsOf(int argc, char *argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    return words;
}

/// Below the user's run-time directory, which is empty after each start of the machine. Empty when there is none.
QString makeRunDirectory() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const QString directory = runtime + "/zr-launcher"_L1;
    if (!runtime.isEmpty() && QDir().mkpath(directory))
        return directory;
    std::fputs("There is no run-time directory (XDG_RUNTIME_DIR): crashes are not remembered.\n", stderr);
    return {};
}

} // namespace

int main(int argc, char *argv[]) {
    LauncherRun::holdSignals();
    const QCoreApplication application(argc, argv);
    const QStringList words = wordsOf(argc, argv);
    if (words.isEmpty()) {
        std::fputs("usage: zr-start LAUNCHER [ARGUMENT...]\n", stderr);
        return wrongUse;
    }
    return LauncherStart(words.first(), words.mid(1), makeRunDirectory()).run();
}
