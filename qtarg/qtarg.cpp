// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtarg.h"

#include "qtargcmdlinecontext.h"
#include "qtargconstraintiface.h"
#include "qtargexceptions.h"
#include "qtargvisitoriface.h"

using namespace Qt::Literals::StringLiterals;

QtArg::QtArg(QChar flag, const QString &name, const QString &description, bool required, bool withValue,
             QtArgVisitorIface *visitor, QtArgConstraintIface *constraint)
    : optionDescription(description),
      mustAppear(required),
      hasValue(withValue),
      optionVisitor(visitor),
      valueConstraint(constraint) {
    if (!flag.isNull())
        addFlag(flag);
    if (!name.isEmpty())
        addName(name);
}

void QtArg::takeValue(QtArgCmdLineContext &context) {
    wasSeen = true;
    if (!hasValue)
        optionValue = true;
    else if (!context.atEnd())
        optionValue = context.next();
}

void QtArg::visit(QtArgCmdLineContext &context) {
    if (optionVisitor)
        optionVisitor->visit(*this, context);
}

void QtArg::checkConstraint() const {
    if (valueConstraint && optionValue.isValid() && !valueConstraint->accepts(optionValue))
        throw QtArgContraintNotObservedEx(
            u"Constraint for the argument: %1 hasn't observed. Wrong value is: %2"_s.arg(
                displayName(), optionValue.toString()));
}

void QtArg::checkMandatory() const {
    if (!mustAppear || optionValue.isValid())
        return;
    if (!wasSeen)
        throw QtArgNotDefinedMandatoryArgumentEx(u"Not defined mandatory argument: %1"_s.arg(displayName()));
    throw QtArgNotDefinedOptionForTheArgumentEx(
        u"Not defined value of the argument: %1"_s.arg(displayName()));
}

QString QtArg::displayName() const {
    if (!optionNames.isEmpty())
        return optionNames.first();
    return optionFlags.isEmpty() ? QString() : QString(optionFlags.first());
}
