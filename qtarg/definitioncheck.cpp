// SPDX-License-Identifier: GPL-3.0-or-later
#include "definitioncheck.h"

#include "qtargexceptions.h"
#include "qtargiface.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

class DefinitionChecker {
public:
    explicit DefinitionChecker(QChar delimiter) : delimiter(delimiter) {}

    void check(const QtArgIface &option) {
        if (option.flags().isEmpty() && option.names().isEmpty())
            throw QtArgNotDefinedNorNameNorFlagEx(u"Not defined nor name nor flag for argument."_s);
        for (const QChar flag : option.flags())
            checkFlag(flag);
        for (const QString &name : option.names())
            checkName(name);
    }

private:
    void checkFlag(QChar flag) {
        if (flag == delimiter || !(flag.isLetter() || flag.isDigit()))
            throw QtArgDissallowedFlagOrNameEx("Dissallowed flag: \""_L1 + flag + "\"."_L1);
        if (knownFlags.contains(flag))
            throw QtArgNameOrFlagAlreadyKnownEx("Flag already in use: "_L1 + flag + u'.');
        knownFlags.insert(flag);
    }

    void checkName(const QString &name) {
        // White space of every script, such as the no-break space.
        static const QRegularExpression whiteSpace(u"\\s"_s, QRegularExpression::UseUnicodePropertiesOption);
        if (name.contains(whiteSpace))
            throw QtArgDissallowedFlagOrNameEx("Dissallowed name: \""_L1 + name + "\"."_L1);
        if (knownNames.contains(name))
            throw QtArgNameOrFlagAlreadyKnownEx("Name already in use: "_L1 + name + u'.');
        knownNames.insert(name);
    }

    QChar delimiter;
    QSet<QChar> knownFlags;
    QSet<QString> knownNames;
};

} // namespace

void checkDefinitions(const QList<QtArgIface *> &options, QChar delimiter) {
    DefinitionChecker checker(delimiter);
    for (const QtArgIface *const option : options)
        checker.check(*option);
}
