// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// Writes a version of a program.
class QtArgVersionPrinterIface {
public:
    virtual ~QtArgVersionPrinterIface() = default;

    virtual void print() = 0;
};
