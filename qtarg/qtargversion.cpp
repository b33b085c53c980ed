// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargversion.h"

#include "qtargexceptions.h"
#include "qtargversionprinteriface.h"

using namespace Qt::Literals::StringLiterals;

QtArgVersion::QtArgVersion(QtArgCmdLine *, char flag, const QString &name)
    : QtArg(QLatin1Char(flag), name, u"Print version."_s, false, false) {}

void QtArgVersion::visit(QtArgCmdLineContext &) {
    if (!versionPrinter)
        throw QtArgVersionPrinterHasntDefinedEx(u"Version printer hasn't defined"_s);
    versionPrinter->print();
    throw QtVersionHasPrintedEx();
}
