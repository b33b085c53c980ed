// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtarghelp.h"

#include "qtargcmdline.h"
#include "qtargexceptions.h"
#include "qtarghelpprinteriface.h"

using namespace Qt::Literals::StringLiterals;

QtArgHelp::QtArgHelp(QtArgCmdLine *parser)
    : QtArg(u'h', u"help"_s, u"Print this help."_s, false, false), commandLine(parser) {}

void QtArgHelp::visit(QtArgCmdLineContext &) {
    if (!helpPrinter)
        throw QtArgHelpPrinterHasntDefinedEx(u"Help printer hasn't defined"_s);
    helpPrinter->print(commandLine->arguments(), commandLine->delimiter());
    throw QtHelpHasPrintedEx();
}
