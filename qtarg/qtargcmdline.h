// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "qtargcmdlinecontext.h"
#include "qtargcmdlineiface.h"

/// The parser: words against options. "--name" and "-flags" lead in options, "--name=value" gives a value;
/// names may be cut short as long as only one option fits.
class QtArgCmdLine : public QtArgCmdLineIface {
public:
    /// Parses the application's arguments; the first word, the program's name, is skipped.
    QtArgCmdLine();
    /// Parses `arguments`, whose first word is the program's name. Needs no application object.
    explicit QtArgCmdLine(const QStringList &arguments);

    QList<QtArgIface *> arguments() const override { return options; }
    QChar delimiter() const override { return delimiterCharacter; }
    void setDelimiter(QChar delimiter) override { delimiterCharacter = delimiter; }
    void addArg(QtArgIface &option) override { addArg(&option); }
    void addArg(QtArgIface *option) override { options.append(option); }
    void parse() override;

    static const QChar defaultDelimiter;

private:
    void parseWord(QString word);
    /// The part before the first "="; the value after it becomes the next word.
    QString withoutValue(QString word);
    void parseFlags(const QString &flags);
    void apply(QtArgIface &option, QtArgCmdLineContext &valueContext);
    bool isLongName(const QString &word) const;
    bool isFlagGroup(const QString &word) const;
    QString withoutDelimiters(const QString &word) const;
    QtArgIface &optionNamed(const QString &name) const;
    /// The option for the character at `place` in a group of flags.
    QtArgIface &optionFlagged(const QString &flags, qsizetype place) const;

    QtArgCmdLineContext context;
    QList<QtArgIface *> options;
    QChar delimiterCharacter = defaultDelimiter;
    QString lastOptionWord;
};
