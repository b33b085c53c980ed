// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtargiface.h"

#include <QVariant>

class QtArgConstraintIface;
class QtArgVisitorIface;

/// An option with flags, names, and perhaps a value. Visitor and constraint stay the caller's.
class QtArg : public QtArgIface {
public:
    /// A NUL flag or an empty name stands for none.
    QtArg(QChar flag, const QString &name, const QString &description, bool required, bool withValue,
          QtArgVisitorIface *visitor = nullptr, QtArgConstraintIface *constraint = nullptr);

    void addFlag(QChar flag) { optionFlags.append(flag); }
    void addName(const QString &name) { optionNames.append(name); }

    bool isRequired() const { return mustAppear; }
    bool isWithValue() const { return hasValue; }
    /// Whether the option was seen.
    bool isPresent() const { return wasSeen; }
    /// The word that was given, or true for an option without a value; invalid when it was not seen.
    QVariant value() const { return optionValue; }

    QList<QChar> flags() const override { return optionFlags; }
    QStringList names() const override { return optionNames; }
    QString description() const override { return optionDescription; }
    void takeValue(QtArgCmdLineContext &context) override;
    void visit(QtArgCmdLineContext &context) override;
    void checkConstraint() const override;
    void checkMandatory() const override;

private:
    /// The name that messages call the option by.
    QString displayName() const;

    QList<QChar> optionFlags;
    QStringList optionNames;
    QString optionDescription;
    bool mustAppear;
    bool hasValue;
    bool wasSeen = false;
    QVariant optionValue;
    QtArgVisitorIface *optionVisitor;
    QtArgConstraintIface *valueConstraint;
};
