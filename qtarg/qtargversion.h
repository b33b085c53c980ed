// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtarg.h"

class QtArgCmdLine;
class QtArgVersionPrinterIface;

/// An option that prints a version and ends the parse by throwing QtVersionHasPrintedEx.
class QtArgVersion : public QtArg {
public:
    QtArgVersion(QtArgCmdLine *parser, char flag, const QString &name);

    /// The printer stays the caller's.
    void setPrinter(QtArgVersionPrinterIface *printer) { versionPrinter = printer; }

    void visit(QtArgCmdLineContext &context) override;

private:
    QtArgVersionPrinterIface *versionPrinter = nullptr;
};
