// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargdefaulthelpprinter.h"

#include "helplayout.h"

#include <iostream>

QtArgDefaultHelpPrinter::QtArgDefaultHelpPrinter(const QString &description)
    : programDescription(description) {}

void QtArgDefaultHelpPrinter::print(const QList<QtArgIface *> &options, QChar delimiter) {
    std::cout << programDescription.toStdString() << std::endl
              << helpText(options, delimiter).toStdString() << std::flush;
}
