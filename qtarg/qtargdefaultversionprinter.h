// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtargversionprinteriface.h"

#include <QString>

/// Writes one text and an end of line to the standard output.
class QtArgDefaultVersionPrinter : public QtArgVersionPrinterIface {
public:
    explicit QtArgDefaultVersionPrinter(const QString &text);

    void print() override;

private:
    QString versionText;
};
