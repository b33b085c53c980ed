// SPDX-License-Identifier: GPL-3.0-or-later
#include "qtargcmdline.h"

#include "definitioncheck.h"
#include "qtargexceptions.h"
#include "qtargiface.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

const QChar QtArgCmdLine::defaultDelimiter(u'-');

QtArgCmdLine::QtArgCmdLine() : QtArgCmdLine(QCoreApplication::arguments()) {}

QtArgCmdLine::QtArgCmdLine(const QStringList &arguments) : context(arguments.mid(1)) {}

void QtArgCmdLine::parse() {
    checkDefinitions(options, delimiterCharacter);
    lastOptionWord.clear();
    while (!context.atEnd())
        parseWord(context.next());
    for (const QtArgIface *const option : std::as_const(options))
        option->checkMandatory();
}

void QtArgCmdLine::parseWord(QString word) {
    if (isLongName(word)) {
        const QString optionWord = withoutValue(std::move(word));
        QtArgIface &option = optionNamed(withoutDelimiters(optionWord));
        lastOptionWord = optionWord;
        apply(option, context);
    } else if (isFlagGroup(word)) {
        parseFlags(withoutDelimiters(withoutValue(std::move(word))));
    } else {
        throw QtArgUnexpectedOptionEx(
            u"Unexpected option: %1. Argument \"%2\" doesn't expect any values."_s.arg(word, lastOptionWord));
    }
}

QString QtArgCmdLine::withoutValue(QString word) {
    const qsizetype equals = word.indexOf(u'=');
    if (equals < 0)
        return word;
    QString optionWord = word.first(equals);
    // Cut in place: a word of nothing but "-=" is split at each of them, and a copy a split takes minutes.
    word.remove(0, equals + 1);
    context.prepend(word);
    return optionWord;
}

void QtArgCmdLine::parseFlags(const QString &flags) {
    for (qsizetype i = 0; i < flags.size(); ++i) {
        QtArgIface &option = optionFlagged(flags, i);
        lastOptionWord = QString(delimiterCharacter) + flags[i];
        QtArgCmdLineContext noWords;
        apply(option, i + 1 == flags.size() ? context : noWords);
    }
}

void QtArgCmdLine::apply(QtArgIface &option, QtArgCmdLineContext &valueContext) {
    option.takeValue(valueContext);
    option.visit(valueContext);
    option.checkConstraint();
}

bool QtArgCmdLine::isLongName(const QString &word) const {
    return word.size() >= 2 && word[0] == delimiterCharacter && word[1] == delimiterCharacter;
}

bool QtArgCmdLine::isFlagGroup(const QString &word) const {
    return word.startsWith(delimiterCharacter);
}

QString QtArgCmdLine::withoutDelimiters(const QString &word) const {
    qsizetype start = 0;
    while (start < 2 && start < word.size() && word[start] == delimiterCharacter)
        ++start;
    return word.mid(start);
}

QtArgIface &QtArgCmdLine::optionNamed(const QString &name) const {
    const auto fits = [&name](const QtArgIface *option) {
        const QStringList names = option->names();
        return std::any_of(names.begin(), names.end(),
                           [&name](const QString &longName) { return longName.startsWith(name); });
    };
    const auto first = std::find_if(options.begin(), options.end(), fits);
    if (first == options.end() || std::any_of(first + 1, options.end(), fits))
        throw QtArgUnknownArgumentEx("Unknown argument: "_L1 + delimiterCharacter + delimiterCharacter +
                                     name);
    return **first;
}

QtArgIface &QtArgCmdLine::optionFlagged(const QString &flags, qsizetype place) const {
    for (QtArgIface *const option : options) {
        if (option->flags().contains(flags[place]))
            return *option;
    }
    // A character outside the basic plane is never a flag, and is told whole.
    const qsizetype length = flags[place].isHighSurrogate() ? 2 : 1;
    throw QtArgUnknownArgumentEx("Unknown argument: "_L1 + delimiterCharacter + flags.mid(place, length));
}
