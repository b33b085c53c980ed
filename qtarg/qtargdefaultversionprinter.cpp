// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargdefaultversionprinter.h"

#include <iostream>

QtArgDefaultVersionPrinter::QtArgDefaultVersionPrinter(const QString &text) : versionText(text) {}

void QtArgDefaultVersionPrinter::print() {
    std::cout << versionText.toStdString() << std::endl;
}
