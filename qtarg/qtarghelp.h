// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtarg.h"

class QtArgCmdLine;
class QtArgHelpPrinterIface;

/// The option that prints the help, "-h" or "--help", and ends the parse by throwing QtHelpHasPrintedEx.
class QtArgHelp : public QtArg {
public:
    /// `parser` gives the options and the delimiter to print; it stays the caller's.
    explicit QtArgHelp(QtArgCmdLine *parser);

    /// The printer stays the caller's.
    void setPrinter(QtArgHelpPrinterIface *printer) { helpPrinter = printer; }

    void visit(QtArgCmdLineContext &context) override;

private:
    QtArgCmdLine *commandLine;
    QtArgHelpPrinterIface *helpPrinter = nullptr;
};
