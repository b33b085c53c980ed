// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class QtArgCmdLineContext;

/// One option, as the parser and the printers see it.
class QtArgIface {
public:
    virtual ~QtArgIface() = default;

    /// One-letter flags, without delimiter.
    virtual QList<QChar> flags() const = 0;
    /// Long names, without delimiters.
    virtual QStringList names() const = 0;
    virtual QString description() const = 0;

    /// The option was seen: takes its value, if it has one, from the words that follow.
    virtual void takeValue(QtArgCmdLineContext &context) = 0;
    /// Tells the visitor.
    virtual void visit(QtArgCmdLineContext &context) = 0;
    /// Throws when the value is refused.
    virtual void checkConstraint() const = 0;
    /// Throws when the option is required and did not appear, or appeared without its value.
    virtual void checkMandatory() const = 0;
};
