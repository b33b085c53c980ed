// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardcommand.h"

#include <iostream>

int main(int argc, char *argv[]) {
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    if (words.value(0) == QLatin1String("card"))
        return runCardCommand(words.mid(1), argc, argv);
    std::cerr << qPrintable(cardCommandHelp());
    return 2;
}
