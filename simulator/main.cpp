// SPDX-License-Identifier: GPL-3.0-or-later
#include "batterycommand.h"
#include "cardcommand.h"
#include "flashcommand.h"

#include <iostream>

int main(int argc, char *argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    if (words.value(0) == QLatin1String("card"))
        return runCardCommand(words.mid(1), argc, argv);
    if (words.value(0) == QLatin1String("battery"))
        return runBatteryCommand(words.mid(1), argc, argv);
    if (words.value(0) == QLatin1String("flash"))
        return runFlashCommand(words.mid(1), argc, argv);
    std::cerr << qPrintable(cardCommandHelp()) << '\n'
              << qPrintable(batteryCommandHelp()) << '\n'
              << qPrintable(flashCommandHelp());
    return 2;
}
