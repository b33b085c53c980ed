// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtarghelpprinteriface.h"
#include "qtargversionprinteriface.h"

#include <QString>

/// Notes what it was given instead of printing it.
class SilentHelpPrinter : public QtArgHelpPrinterIface {
public:
    void print(const QList<QtArgIface *> &options, QChar delimiter) override {
        printedOptions = options;
        printedDelimiter = delimiter;
        ++prints;
    }

    QList<QtArgIface *> printedOptions;
    QChar printedDelimiter;
    int prints = 0;
};

/// Counts instead of printing.
class SilentVersionPrinter : public QtArgVersionPrinterIface {
public:
    void print() override { ++prints; }

    int prints = 0;
};
