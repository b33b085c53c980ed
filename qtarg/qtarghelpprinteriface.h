// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QList>

class QtArgIface;

/// Writes the help of a program.
class QtArgHelpPrinterIface {
public:
    virtual ~QtArgHelpPrinterIface() = default;

    virtual void print(const QList<QtArgIface *> &options, QChar delimiter) = 0;
};
