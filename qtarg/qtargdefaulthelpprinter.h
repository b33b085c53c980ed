// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtarghelpprinteriface.h"

#include <QString>

/// Writes a description of the program and a line for each option to the standard output.
class QtArgDefaultHelpPrinter : public QtArgHelpPrinterIface {
public:
    explicit QtArgDefaultHelpPrinter(const QString &description);

    void print(const QList<QtArgIface *> &options, QChar delimiter) override;

private:
    QString programDescription;
};
