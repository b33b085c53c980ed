// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QChar>
#include <QList>

class QtArgIface;

/// A parser of command lines. Options stay the caller's and must outlive the parsing.
class QtArgCmdLineIface {
public:
    virtual ~QtArgCmdLineIface() = default;

    /// The options in order of addition.
    virtual QList<QtArgIface *> arguments() const = 0;
    virtual QChar delimiter() const = 0;
    virtual void setDelimiter(QChar delimiter) = 0;
    virtual void addArg(QtArgIface &option) = 0;
    virtual void addArg(QtArgIface *option) = 0;
    /// Returns when the command line leads to a run, and throws a QtArgBaseException otherwise.
    virtual void parse() = 0;
};
